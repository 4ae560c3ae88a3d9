#!/usr/bin/env bash
# exports.sh DLL: compares what the DLL exports with the baseline of abi.sh, without what hosts compile for
# themselves: inline functions, and the names of types. 64-bit integers are other types there.
set -euo pipefail
export LC_ALL=C
baseline=$(dirname "$0")/abi/lib$(basename "$1" .dll).xml
diff -u <(grep '<elf-symbol ' "$baseline" | grep -vE "'func-type' binding='weak|'_ZTS" |
    sed -E "s/.* name='([^']*)'.*/\1/; s/Lm([0-9])/Ly\1/; s/(durationI|IL|EL)l/\1x/g" | sort) \
    <(x86_64-w64-mingw32-objdump -p "$1" | sed -n '/^\[Ordinal.*Table/,/^$/ s/^\t\[.*\] //p' | sort)
