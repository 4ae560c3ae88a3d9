#!/usr/bin/env bash
# What the library shows to its hosts is the list beside this script: the one class and nothing else.
export LC_ALL=C
diff -u "$(dirname "$0")/exported_symbols.txt" \
    <(nm -D --defined-only --demangle "$1" | sed -E 's/^[0-9a-f]* [A-Za-z] //' | sort -u)
