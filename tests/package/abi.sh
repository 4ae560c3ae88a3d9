#!/usr/bin/env bash
# abi.sh [--renew] LIBRARY: compares what hosts are linked against (symbols, sizes, virtual tables, enumerators)
# with the baseline in abi/, or writes that anew.
set -euo pipefail
abi=$(dirname "$0")/abi
library=${!#}
baseline=$abi/$(basename "${library%%.so*}").xml
current=$(mktemp)
trap 'rm "$current"' EXIT
abidw --suppressions "$abi/ours.ini" --no-show-locs --no-corpus-path --no-comp-dir-path --no-elf-needed \
    --no-architecture --no-parameter-names --out-file "$current" "$library"
grep -q '<abi-instr' "$current" || { echo "$library: has no debug information" && exit 1; }
if [ "$1" = --renew ]; then
    cp "$current" "$baseline"
else
    abidiff "$baseline" "$current"
fi
