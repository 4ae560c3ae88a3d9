# bash completion for echotable(1). All choices come from the program itself.

_echotable_verbs() { # <tool> [first word]: the first words of all verbs, or the second ones
    "$1" --help | sed -n 's/^  \([a-z ]*[a-z]\)  .*/\1/p' |
        awk -v first="${2-}" 'first == "" { print $1 } first == $1 { print $2 }'
}

_echotable_programs() { # <tool>
    "$1" programs | awk 'NR > 1 { print $2 }'
}

_echotable_keys() { # <tool> <program>
    "$1" programs | awk -v program="$2" '$1 == program || $2 == program { for (i = 3; i <= NF; i++) print $i "=" }'
}

_echotable_levels() { # <tool> <program> <key>
    LC_ALL=C "$1" show "$2" | awk -v key="${3#prop.}" '
        NR == 1 { from = index($0, "OFFERED"); width = index($0, "APPLICABLE") - from }
        $1 == "prop." key { print substr($0, from, width) }'
}

_echotable_tasks() { # <tool> <project>: program and name of each task, with a tab between them
    "$1" project info "$2" --json | sed -n 's/^            "\(name\|program\)": "\(.*\)",$/\2/p' |
        sed 's/\\\(["\\]\)/\1/g' | while IFS= read -r name && read -r program; do printf '%s\t%s\n' "$program" "$name"; done
}

_echotable_value() { # <option>: its value in the words before the present one
    local i
    for ((i = 1; i < COMP_CWORD - 1; i++)); do
        [ "${COMP_WORDS[i]}" != "$1" ] || _echotable_unquoted "${COMP_WORDS[i + 1]}"
    done
}

_echotable_unquoted() { # <word as typed>
    local word=${1/#\~\//$HOME/}
    word=${word#[\"\']}
    word=${word%[\"\']}
    printf '%s' "${word//\\/}"
}

_echotable_program() { # <tool>: the one whose options are meant
    local task
    task=$(_echotable_value --task)
    [ -n "$task" ] || { echo "${COMP_WORDS[2]}" && return; }
    _echotable_tasks "$1" "$(_echotable_value --project)" | awk -F '\t' -v task="$task" '$2 == task { print $1 }'
}

_echotable_verb() { # the one or two words of the verb
    echo "${COMP_WORDS[1]}"
    [ "${COMP_WORDS[1]}" != project ] || echo "${COMP_WORDS[2]}"
}

_echotable_choices() { # <tool>: for the word at COMP_CWORD; none where a file is meant
    local tool=$1 verb=${COMP_WORDS[1]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    case $previous:${COMP_WORDS[COMP_CWORD]} in
        --settings:* | --output:* | --project:*) return ;;
        --language:* | --comments:*) echo de en ;;
        --elements:*) echo all none quads brics beams cables springs ;;
        *:-*) "$tool" $(_echotable_verb) --help | grep -oE -- ' --[a-z-]+' ;;
        *:=) _echotable_levels "$tool" "$(_echotable_program "$tool")" "$previous" ;;
        =:*) _echotable_levels "$tool" "$(_echotable_program "$tool")" "${COMP_WORDS[COMP_CWORD - 2]}" ;;
        *) case $COMP_CWORD:$verb in
            1:*) _echotable_verbs "$tool" ;;
            2:show | 2:set | 2:telinp | 2:edit) _echotable_programs "$tool" ;;
            2:project) _echotable_verbs "$tool" project ;;
            5:project) [ "${COMP_WORDS[2]}" != store ] || _echotable_programs "$tool" ;;
            *:set) _echotable_keys "$tool" "$(_echotable_program "$tool")" ;;
            esac ;;
    esac
}

# The file of the project, if the present word is the name of a task; otherwise empty.
_echotable_project() {
    case $COMP_CWORD:${COMP_WORDS[1]}:${COMP_WORDS[2]-}:${COMP_WORDS[COMP_CWORD - 1]} in
        4:project:store:* | 4:project:load:* | 4:project:remove:*) _echotable_unquoted "${COMP_WORDS[3]}" ;;
        *:--task) _echotable_value --project ;;
    esac
}

_echotable() { # <tool>
    local present=${COMP_WORDS[COMP_CWORD]} project name
    project=$(_echotable_project)
    COMPREPLY=()
    if [ -z "$project" ]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_echotable_choices "$1" 2>/dev/null)" -- "${present#=}")
    else # compgen would run a "$(command)" in a name
        present=$(_echotable_unquoted "$present")
        while IFS=$'\t' read -r _ name; do
            [[ $name != "$present"* ]] || COMPREPLY+=("$(printf %q "$name")")
        done < <(_echotable_tasks "$1" "$project" 2>/dev/null)
    fi
    [[ ${COMPREPLY[0]-} != *= ]] || compopt -o nospace 2>/dev/null
}

complete -o default -F _echotable echotable
