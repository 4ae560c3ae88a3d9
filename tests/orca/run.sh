#!/usr/bin/env bash
# run.sh FOLDER-OF-PROGRAMS: edits settings by keys with the screen reader Orca, prints what it speaks, and compares
# that with what is expected. On a display, a bus and an accessibility registry of its own.
set -euo pipefail
here=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
if [ -z "${TIV_ORCA_SCRATCH-}" ]; then
    TIV_ORCA_SCRATCH=$(mktemp -d)
    export TIV_ORCA_SCRATCH HOME=$TIV_ORCA_SCRATCH XDG_RUNTIME_DIR=$TIV_ORCA_SCRATCH LC_ALL=C.UTF-8
    trap 'rm -rf "$TIV_ORCA_SCRATCH"' EXIT
    dbus-run-session -- "$0" "$@"
    exit
fi
bin=$(realpath "$1") scratch=$TIV_ORCA_SCRATCH log=$TIV_ORCA_SCRATCH/orca.log
children=()
trap 'kill "${children[@]}" 2>/dev/null; wait' EXIT
background() {
    "$@" >>"$scratch/background.log" 2>&1 &
    children+=($!)
}

waitFor() { # <command>...: until it succeeds, for half a minute
    local tries=300
    until "$@"; do
        [ $((tries -= 1)) -gt 0 ] || { echo "Waited too long for: $*" >&2; exit 1; }
        sleep 0.1
    done
}

Xvfb -displayfd 3 -screen 0 1024x768x24 3>"$scratch/display" 2>>"$scratch/background.log" &
children+=($!)
waitFor test -s "$scratch/display"
DISPLAY=:$(cat "$scratch/display")
export DISPLAY QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 NO_AT_BRIDGE=0
export SPEECHD_CMD=/nonexistent # no voice: the log has what Orca speaks
background openbox
background /usr/libexec/at-spi-bus-launcher --launch-immediately
waitFor gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus --method org.a11y.Bus.GetAddress \
    >>"$scratch/background.log" 2>&1
background /usr/bin/python3 "$here/start_orca.py" --replace --debug-file="$log"
waitFor grep -qs 'Screen reader on' "$log"

spoken() { # <first line of the log>
    tail -n "+$1" "$log" | sed -nE "s/^.*SPEECH OUTPUT: '(.*)'[ {].*$/\1/p"
}

quiet() { # waits until Orca has no more to say
    local before=-1 now tries=12
    while now=$(wc -l <"$log") && [ "$now" != "$before" ] && [ $((tries -= 1)) -gt 0 ]; do
        before=$now
        sleep 2.5
    done
}

failures=0
step() { # <expected> <key>...: keys of xdotool; "" for none
    local expected=$1 from said
    shift
    from=$(($(wc -l <"$log") + 1))
    [ $# = 0 ] || xdotool key --delay 200 "$@"
    quiet
    said=$(spoken "$from" | paste -sd '|')
    if grep -qF -- "$expected" <<<"$said"; then
        echo "ok      ${*:-(opens)}: $said"
    else
        echo "FAILED  ${*:-(opens)}: $said"
        echo "        expected: $expected"
        failures=$((failures + 1))
    fi
}

"$bin/echotable" edit esk --settings "$scratch/settings.txt" --elements all 2>"$scratch/stderr" &
children+=($!)
waitFor xdotool search --onlyvisible --name settings.txt windowfocus >>"$scratch/background.log" 2>&1
# shellcheck source=tests/orca/steps.sh
. "$here/steps.sh"
if grep -v keyEventError "$scratch/stderr"; then # which Qt prints while Orca is slow
    echo "FAILED  the program wrote the lines above to stderr"
    failures=$((failures + 1))
fi
[ "$failures" = 0 ]
