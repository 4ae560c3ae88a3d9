#!/usr/bin/env bash
# run.sh FOLDER-OF-PROGRAMS: edits settings by keys, and by the actions that assistive programs use, with the screen
# reader Orca. Prints what Orca speaks, and compares that with what is expected. On a display, a bus and an
# accessibility registry of its own.
set -euo pipefail
here=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
scratch=${TIV_ORCA_SCRATCH-}
children=()

background() {
    "$@" >>"$scratch/background.log" 2>&1 &
    children+=($!)
}

waitFor() { # <seconds> <command>...: until it succeeds; fails after that time
    local tries=$((10 * $1))
    shift
    until "$@" >>"$scratch/background.log" 2>&1; do
        [ $((tries -= 1)) -gt 0 ] || return
        sleep 0.1
    done
}

stop() {
    kill "${children[@]}" || true
    sleep 2
    kill -KILL "${children[@]}" || true
    wait
    children=()
} 2>/dev/null

# The display comes first: the bus hands it on to the services that it starts. It keeps the address of the
# accessibility bus, which Qt reads there, only with -noreset: otherwise the last program that leaves takes it along.
if [ -z "$scratch" ]; then
    scratch=$(mktemp -d)
    background Xvfb -noreset -displayfd 3 -screen 0 1024x768x24 3>"$scratch/display"
    waitFor 30 test -s "$scratch/display"
    result=0
    DISPLAY=:$(cat "$scratch/display") TIV_ORCA_SCRATCH=$scratch HOME=$scratch XDG_RUNTIME_DIR=$scratch LC_ALL=C.UTF-8 \
        dbus-run-session -- "$0" "$@" 2>&1 |
        grep --line-buffered -v '^dbus-daemon\|^SpiRegistry\|^X connection' || result=$?
    stop
    rm -rf "$scratch"
    exit $result
fi
bin=$(realpath "$1")
trap stop EXIT
trap 'echo "FAILED  to start:" && tail "$scratch/background.log"' ERR
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 NO_AT_BRIDGE=0
export SPEECHD_CMD=/nonexistent # no voice: the log has what Orca speaks
waitFor 30 gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus --method org.a11y.Bus.GetAddress

spoken() { # <first line of the log>
    tail -n "+$1" "$log" | sed -nE "s/^.*SPEECH OUTPUT: '(.*)'[ {].*$/\1/p" | paste -sd '|'
}

editor() {
    exec "$bin/echotable" edit esk --settings "$scratch/settings.txt" --elements all 2>"$scratch/stderr"
}

log=$scratch/orca.log
background openbox
background /usr/bin/python3 "$here/start_orca.py" --disable=braille --debug-file="$log"
waitFor 30 grep -qs 'Screen reader on' "$log"
background editor
waitFor 15 xdotool search --onlyvisible --name settings.txt windowfocus
waitFor 15 grep -qs "SPEECH OUTPUT: 'Output options" "$log"

keys() { xdotool key --delay 200 "$@"; }
press() { timeout 20 /usr/bin/python3 -W ignore "$here/press.py" "$@"; }

failures=0
step() { # <expected> <command>...: it runs, and Orca speaks what is expected once
    local expected=$1 from said
    shift
    from=$(($(wc -l <"$log") + 1))
    "$@"
    waitFor 20 eval "spoken $from | grep -qF -- '$expected'" || true
    sleep 1.5 # what else it speaks
    said=$(spoken "$from")
    if [ "$(grep -oF -- "$expected" <<<"$said" | wc -l)" = 1 ]; then
        echo "ok      $*: $said"
    else
        echo "FAILED  $*: $said"
        echo "        expected once: $expected"
        failures=$((failures + 1))
    fi
}

# shellcheck source=tests/orca/steps.sh
. "$here/steps.sh"
if grep -v 'keyEventError\|notifyKeyboardListenerCallback' "$scratch/stderr"; then # which Qt prints while Orca is slow
    echo "FAILED  the program wrote the lines above to stderr"
    failures=$((failures + 1))
fi
exit $((failures > 0))
