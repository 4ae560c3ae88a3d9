#!/usr/bin/env bash
# exports.sh DLL: compares what the DLL exports with the baseline of abi.sh, without what hosts compile for
# themselves: inline functions, and the names of types.
set -euo pipefail
export LC_ALL=C
baseline=$(dirname "$0")/abi/lib$(basename "$1" .dll).xml
diff -u <(grep '<elf-symbol ' "$baseline" | grep -vE "'func-type' binding='weak|'_ZTS" |
    sed -E "s/.* name='([^']*)'.*/\1/" | sort) \
    <(x86_64-w64-mingw32-objdump -p "$1" | sed -n '/^\[Ordinal.*Table/,/^$/ s/^\t\[.*\] //p' | sort)
