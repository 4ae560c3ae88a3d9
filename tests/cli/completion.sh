#!/usr/bin/env bash
# completion.sh TOOL SCRIPT: what bash offers after each line, which stands as bash splits it.
# shellcheck source=/dev/null
source "$2"
unset LANGUAGE
failed=0
while IFS='|' read -r line expected; do
    read -ra COMP_WORDS <<<"$line"
    [ "${line: -1}" != ' ' ] || COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    _echotable "$1"
    [ "${COMPREPLY[*]}" = "$expected" ] || { echo "$line: ${COMPREPLY[*]}, not $expected" && failed=1; }
done <<'LINES'
echotable s|show set
echotable project |create info store load
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
LINES
exit $failed
