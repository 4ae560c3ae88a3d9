#!/usr/bin/env bash
# abi.sh [--renew] LIBRARY: compares what hosts are linked against (symbols, sizes, virtual tables, enumerators)
# with the baseline in abi/, and its symbols with those that the Debian package lists; or writes both anew.
set -euo pipefail
export LC_ALL=C
here=$(dirname "$(realpath "$0")")
abi=$here/abi
library=${!#}
baseline=$abi/$(basename "${library%%.so*}").xml
listed=$(grep -l "^$(basename "${library%%.so*}").so" "$here"/../../cmake/debian/*.symbols)
current=$(mktemp)
trap 'rm "$current"' EXIT
abidw --suppressions "$abi/ours.ini" --no-show-locs --no-corpus-path --no-comp-dir-path --no-elf-needed \
    --no-architecture --no-parameter-names --out-file "$current" "$library"
grep -q '<abi-instr' "$current" || { echo "$library: has no debug information" && exit 1; }
symbols() {
    nm --dynamic --defined-only --extern-only "$library" | awk '{ print $3 }' | sort
}
if [ "$1" = --renew ]; then
    cp "$current" "$baseline"
    version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' "$here/../../CMakeLists.txt")
    { grep '^[^ ]' "$listed" && symbols | while read -r symbol; do # one that was listed before keeps its version
        grep "^ $symbol@" "$listed" || echo " $symbol@Base $version"
    done; } >"$current"
    cp "$current" "$listed"
else
    abidiff "$baseline" "$current"
    diff <(sed -n 's/^ \(.*\)@.*/\1/p' "$listed" | sort) <(symbols)
fi
