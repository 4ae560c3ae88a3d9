#!/usr/bin/env bash
# Runs a Windows program under Wine, without a display: wine.sh <program> [argument]...
# `wine.sh --stop` ends the processes that Wine keeps running between programs.
set -euo pipefail
build=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../build" && pwd)
export WINEPREFIX=$build/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree=;mshtml='
# The folder of the DLLs that are not beside the program, unless the caller has set another one.
export WINEPATH=${WINEPATH-Z:$build/windows-dependencies/bin}
# Wine drops variables whose names begin with QT_, and passes WINEQT_... on as QT_.... The offscreen platform draws text
# with these fonts only.
export WINEQT_QPA_PLATFORM=offscreen WINEQT_QPA_FONTDIR='Z:\usr\share\fonts\truetype\dejavu'

[ "$1" != --stop ] || { wineserver -k || true; exit; } # none runs
# Makes the prefix and starts the services first: they would keep the output of a program open.
(
    flock 9
    mkdir -p "$WINEPREFIX"
    wineserver -k0 && exit  # it runs
    wineserver -p600 9>&-
    wine cmd /c exit 9>&-
) 9>"$build/wine.lock" </dev/null >/dev/null 2>&1
exec wine "$@"
