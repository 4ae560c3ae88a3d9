#!/usr/bin/env bash
# completion.sh TOOL BASH-SCRIPT ZSH-SCRIPT: what the shells offer after each line. The line stands as bash splits
# it; " = " is one word for zsh. Without zsh only bash is tested.
# shellcheck source=/dev/null
source "$2"
unset LANGUAGE
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
cp "$3" "$folder/_echotable"
cd "$folder" || exit
"$1" project create P
"$1" project store P 'My $(touch oops) "task"' kst
"$1" project store P static esk
failed=0

in_zsh() { # <tool> <line>: without a terminal, compadd prints what it would offer
    zsh -f -c '
        compadd() {
            while [[ $1 = -* && $1 != -a ]]; do [[ $1 != -S ]] || shift; shift; done
            local word
            for word in ${(P)2}; do
                [[ $word = ${(Q)words[CURRENT]}* ]] || continue
                [[ $word != *=?* ]] || word=${word#*=}
                reply+=(${(q)word})
            done
        }
        _files() { }
        words=(${(z)2}); words[1]=$1; [[ $2 != *" " ]] || words+=("")
        CURRENT=$#words
        source ./_echotable
        print -nr -- "$reply"' "" "$@"
}

while IFS='|' read -r line expected; do
    read -ra COMP_WORDS <<<"$line"
    [ "${line: -1}" != ' ' ] || COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    _echotable "$1"
    [ "${COMPREPLY[*]}" = "$expected" ] || { echo "$line: ${COMPREPLY[*]}, not $expected" && failed=1; }
    command -v zsh >/dev/null || continue
    offered=$(in_zsh "$1" "$(sed "s/ = */=/g" <<<"$line")")
    [ "$offered" = "$expected" ] || { echo "zsh: $line: $offered, not $expected" && failed=1; }
done <<'LINES'
echotable s|show set
echotable project |create add info store load remove
echotable telinp plax2 --l|--language
echotable telinp plax2 --language e|en
echotable set --settings |
echotable show q|qsx.bruc qsx.riss qsx.elpl
echotable project store house.tiv static v|vibr
echotable project create house.tiv --quads |
echotable project info -- -|--help --version --json
echotable set esk l|load= lsum= line=
echotable set 10 sp|spri=
echotable set esk load =|default no normal full extensive
echotable set esk load = full prop.esk_reac = n|no normal
echotable telinp --project P --task |My\ \$\(touch\ oops\)\ \"task\" static
echotable project remove P s|static
echotable set --project P --task static li|line=
echotable set --project P --task static full = n|no normal
LINES
[ ! -e oops ] || { echo "a task's name was run" && failed=1; }
exit $failed
