#!/usr/bin/env bash
# shellcheck disable=SC2162 # pkg-config prints backslashes before blanks
# host.sh WAY QT PREFIX SCRATCH: builds the host in consumer/ in the way that is named, and runs it. PREFIX is where
# the library for that version of Qt is installed. CXX and CXXFLAGS are the compiler's.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
way=$1 qt=$2 prefix=$3 scratch=$4
suffix=
[ "$qt" = 5 ] || suffix=-qt6
mkdir -p "$scratch"
cd "$scratch"

library_folder=$(dirname "$(find "$prefix" -name "libtiv_echotable$suffix.so")")
export PKG_CONFIG_PATH=$library_folder/pkgconfig LD_LIBRARY_PATH=$library_folder

runs() { # <program>: prints what is expected
    "$1" | diff "$here/consumer/expected.txt" -
}
fails() { # <expected sentence> <command>...
    local output
    if output=$("${@:2}" 2>&1) || ! grep -qF "$1" <<<"$(tr -s ' \n' ' ' <<<"$output")"; then
        echo "${*:2}: expected to fail with: $1" && echo "$output" && exit 1
    fi
}

way_pkgconfig() {
    local folder
    for folder in . clang; do
        mkdir -p "$folder"
        ln -sf "$here"/consumer/{Makefile,main.cpp} "$folder"
    done
    export LIBRARY=tiv_echotable$suffix
    make
    runs ./consumer
    [ -z "$(command -v clang++-14)" ] || CXX=clang++-14 CXXFLAGS='' make -C clang main.o
}

# qmake takes no blanks from pkg-config: the package is reached by a path without any.
way_qmake() {
    link=$(mktemp -d)
    trap 'rm -r "$link"' EXIT
    ln -s "$prefix" "$link/installed"
    export PKG_CONFIG_PATH=$link/installed${PKG_CONFIG_PATH#"$prefix"}
    QT_SELECT=$qt qmake"${suffix:+6}" "LIBRARY=tiv_echotable$suffix" "QMAKE_CXX=$CXX" "QMAKE_LINK=$CXX" \
        "QMAKE_CXXFLAGS+=${CXXFLAGS-}" "QMAKE_LFLAGS+=${CXXFLAGS-}" "$here/consumer/consumer.pro"
    make -s
    runs ./consumer
}

# What a host of another kind reads.
way_refused() {
    local arguments header other=$((11 - qt))
    read -a arguments < <(pkg-config --cflags "tiv_echotable$suffix")
    for header in tiv/dbo/dbo.h tiv/smartassert/smart_assert.h tiv/echo/echo_data.h; do
        echo "#include <$header>" >header.cpp
        fails "tiv_echotable needs C++17" "$CXX" -std=c++14 -fPIC -E header.cpp -o header.ii "${arguments[@]}"
    done
    fails "built with another major version of Qt" "$CXX" -std=c++17 -fPIC -E header.cpp -o header.ii \
        "${arguments[@]}" -U TIV_ECHOTABLE_QT -D TIV_ECHOTABLE_QT=$other
    cat >CMakeLists.txt <<CMAKE
cmake_minimum_required(VERSION 3.25)
project(refused LANGUAGES CXX)
add_library(Qt$other::Core INTERFACE IMPORTED)
find_package(tiv_echotable${suffix/-/_} CONFIG REQUIRED)
CMAKE
    fails "was built with Qt $qt, but this project uses Qt $other" cmake -B refused -D CMAKE_PREFIX_PATH="$prefix"
}

"way_$way"
