#!/usr/bin/env bash
# Takes the pictures of the sample host, on a virtual screen: docs/images/make.sh FOLDER_OF_THE_PROGRAMS
# Needs xvfb, xdotool and imagemagick.
set -euo pipefail
programs=$(realpath "$1")
pictures=$(dirname "$(realpath "$0")")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

task() { # <name> <program> KEY=LEVEL...
    "$programs/echotable" set "$2" "${@:3}" --output settings.txt
    "$programs/echotable" project store house.tiv "$1" "$2" --settings settings.txt
}

# shellcheck disable=SC2016 # the inner shell expands
picture() { # <name> <locale> <what xdotool does first> [argument of echohost]...
    xvfb-run --auto-servernum --server-args "-screen 0 1160x470x24 -dpi 96" bash -c '
        env LC_ALL="$2" XDG_RUNTIME_DIR="$PWD" XDG_CONFIG_HOME="$PWD" "$0" -qwindowgeometry 1160x470+0+0 "${@:4}" house.tiv & host=$!
        xdotool search --sync --onlyvisible --name house.tiv >window
        for step in "$3" "mousemove 1159 469"; do
            sleep 1
            xdotool $step
        done
        sleep 1
        import -window root -strip "$1"
        kill "$host"' "$programs/echohost" "$pictures/$1.png" "${@:2}"
}

"$programs/echotable" project create house.tiv --quads 480 --beams 96 --springs 24
task "Floor slabs" esk prop.full=normal prop.load=full prop.esk_reac=full prop.disp=extensive
task "Eigenvalues" esk.eige prop.eige=full
task "Slab design" dimvel.bruc prop.rtab=extensive prop.punc=no
task "Frames" plax2 prop.full=normal prop.node=no prop.sect=no prop.forc=full prop.bdef=extensive
task "Load cases" mexora prop.mexora_tabs=normal

picture echohost-light C.UTF-8 "mousemove 580 218 click 1"
picture echohost-dark C.UTF-8 "mousemove 40 127 click 1" --dark
picture echohost-german de_DE.UTF-8 "mousemove 40 127 click 1"
