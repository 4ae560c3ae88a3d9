# bash completion for echotable(1). What there is to choose from, the program itself says.

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

_echotable_verb() { # the one or two words of the verb
    echo "${COMP_WORDS[1]}"
    [ "${COMP_WORDS[1]}" != project ] || echo "${COMP_WORDS[2]}"
}

_echotable_choices() { # <tool>: for the word at COMP_CWORD; none where a file is meant
    local tool=$1 verb=${COMP_WORDS[1]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    case $previous:${COMP_WORDS[COMP_CWORD]} in
        --settings:* | --output:* | --project:*) return ;;
        --language:*) echo de en ;;
        --elements:*) echo all none quads brics beams cables springs ;;
        *:-*) "$tool" $(_echotable_verb) --help | grep -oE -- ' --[a-z-]+' ;;
        *:=) _echotable_levels "$tool" "${COMP_WORDS[2]}" "$previous" ;;
        =:*) _echotable_levels "$tool" "${COMP_WORDS[2]}" "${COMP_WORDS[COMP_CWORD - 2]}" ;;
        *) case $COMP_CWORD:$verb in
            1:*) _echotable_verbs "$tool" ;;
            2:show | 2:set | 2:telinp | 2:edit) _echotable_programs "$tool" ;;
            2:project) _echotable_verbs "$tool" project ;;
            5:project) [ "${COMP_WORDS[2]}" != store ] || _echotable_programs "$tool" ;;
            *:set) _echotable_keys "$tool" "${COMP_WORDS[2]}" ;;
            esac ;;
    esac
}

_echotable() { # <tool>
    mapfile -t COMPREPLY < <(compgen -W "$(_echotable_choices "$1" 2>/dev/null)" -- "${COMP_WORDS[COMP_CWORD]#=}")
    [[ ${COMPREPLY[0]-} != *= ]] || compopt -o nospace 2>/dev/null
}

complete -o default -F _echotable echotable
