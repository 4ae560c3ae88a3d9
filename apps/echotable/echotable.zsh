#compdef echotable
# zsh completion for echotable(1). All choices come from the program itself.

_echotable_column() { # <awk condition> <awk list>: of `echotable programs`
    $words[1] programs 2>/dev/null | awk "NR > 1 && ($1) { $2 }"
}

_echotable_tasks() { # <project>: the names, or "program name" with a tab between them if $2 is given
    $words[1] project info $1 --json 2>/dev/null | sed -n 's/^            "\(name\|program\)": "\(.*\)",$/\2/p' |
        sed 's/\\\(["\\]\)/\1/g' | while IFS= read -r name && read -r program; do
            print -r -- ${2+$program$'\t'}$name
        done
}

_echotable() {
    local -a choices
    local verb=$words[2] previous=$words[CURRENT-1] present=$words[CURRENT] program=$words[3] key line
    local -i at_project=$words[(i)--project] at_task=$words[(i)--task]
    local project=${(Q)words[at_project+1]}
    if ((at_task < CURRENT - 1)); then
        for line in ${(f)"$(_echotable_tasks $project with-program)"}; do
            [[ ${line#*$'\t'} != ${(Q)words[at_task+1]} ]] || program=${line%%$'\t'*}
        done
    fi
    case $previous in
        --settings | --output | --project) _files; return ;;
        --language | --comments) choices=(de en) ;;
        --elements) choices=(all none quads brics beams cables springs) ;;
        --task) choices=(${(f)"$(_echotable_tasks $project)"}) ;;
        *) case $CURRENT:$verb:$present in
            *:*:-*) choices=($($words[1] $verb ${${(M)verb:#project}:+$words[3]} --help 2>/dev/null |
                grep -oE -- ' --[a-z-]+')) ;;
            2:*) choices=($($words[1] --help | sed -n 's/^  \([a-z]*\) .*/\1/p' | uniq)) ;;
            3:(show|set|telinp|edit):*) choices=($(_echotable_column 1 'print $2')) ;;
            3:project:*) choices=($($words[1] --help | sed -n 's/^  project \([a-z]*\) .*/\1/p')) ;;
            5:project:*) [[ $words[3] != (store|load|remove) ]] ||
                choices=(${(f)"$(_echotable_tasks ${(Q)words[4]})"}) ;;
            6:project:*) [[ $words[3] != store ]] || choices=($(_echotable_column 1 'print $2')) ;;
            *:set:*=*)
                key=${present%%=*}
                choices=($(LC_ALL=C $words[1] show $program 2>/dev/null | awk -v key=${key#prop.} '
                    NR == 1 { from = index($0, "OFFERED"); width = index($0, "APPLICABLE") - from }
                    $1 == "prop." key { print substr($0, from, width) }'))
                choices=($key=$^choices) ;;
            *:set:*)
                choices=($(_echotable_column "\$1 == \"$program\" || \$2 == \"$program\"" \
                    'for (i = 3; i <= NF; i++) print $i "="'))
                compadd -S '' -a choices
                return ;;
            esac ;;
    esac
    ((${#choices})) && compadd -a choices || _files
}

_echotable "$@"
