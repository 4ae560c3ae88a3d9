#!/usr/bin/env bash
# Cross-builds the dependencies for 64-bit Windows from Debian's sources: Qt, Boost.Locale, SQLite and GoogleTest.
# They are installed into one prefix in a cache folder; a change of this script or of a version gets a new folder.
# <link> becomes a symbolic link to it. A finished step leaves a stamp and is not repeated. Takes half an hour on
# two cores, most of it for Qt.
#
#   dependencies.sh <link>
set -euo pipefail
host=x86_64-w64-mingw32
jobs=$(nproc)

versions=$(dpkg-query -W g++-mingw-w64-x86-64-posix mingw-w64-common googletest libboost1.74-dev libqt5core5a \
    libsqlite3-0)
key=$({ cat "$0" && echo "$versions"; } | sha256sum | cut -c 1-12)
folder=${XDG_CACHE_HOME:-$HOME/.cache}/tiv_echotable/windows/$key
mkdir -p "$folder"/{apt/lists/partial,bin,include,lib/cmake,licenses,logs,stamps,tools} "$(dirname "$1")"
ln -sfn "$folder" "$1"

# Use the compiler variant with std::thread, even where the other one is the default.
for compiler in gcc g++; do
    ln -sf "$(command -v "$host-$compiler-posix")" "$folder/tools/$host-$compiler"
done
PATH=$folder/tools:$PATH

# Fetch sources from the machine's own Debian archive, even if its lists do not name sources.
configuration=$folder/apt/apt.conf
if [ ! -e "$configuration" ]; then
    # shellcheck disable=SC2016 # apt-get expands
    apt-get indextargets 'Created-By: Packages' 'Origin: Debian' --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' |
        sort -u | sed 's,^,deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] ,' \
        >"$folder/apt/sources.list"
    cat >"$configuration" <<CONF
Dir::Etc::SourceList "$folder/apt/sources.list";
Dir::Etc::SourceParts "/dev/null";
Dir::State::Lists "$folder/apt/lists";
Dir::Cache::srcpkgcache "";
Dir::Cache::pkgcache "";
APT::Sandbox::User "";
CONF
fi
export APT_CONFIG=$configuration

log=/dev/null
trap '[ $? = 0 ] || tail -n 30 "$log" >&2' EXIT

step() { # <name>: runs build_<name> once, in a temporary folder
    local stamp=$folder/stamps/$1 scratch=$folder/scratch/$1
    [ ! -e "$stamp" ] || return 0
    log=$folder/logs/$1
    echo "Windows: $1 (log: $log)"
    rm -rf "$scratch"
    mkdir -p "$scratch"
    SECONDS=0
    (cd "$scratch" && "build_$1") >"$log" 2>&1
    rm -rf "$scratch"
    echo "Windows: $1 took $SECONDS s" | tee "$stamp"
}

fetch() { # <source package>: unpacks it into `source`
    apt-get source -q "$1"
    mv "$1"-*/ source
    cp source/debian/copyright "$folder/licenses/$1"
}

build_lists() {
    apt-get update -q
}

# The compiler's runtime libraries, which a program needs beside it.
build_runtime() {
    local library
    for library in libgcc_s_seh-1 libstdc++-6 libwinpthread-1; do
        "$host-strip" -o "$folder/bin/$library.dll" "$("$host-g++" -print-file-name="$library.dll")"
    done
    cp /usr/share/doc/gcc-mingw-w64-base/copyright "$folder/licenses/gcc"
    cp /usr/share/doc/mingw-w64-common/copyright "$folder/licenses/mingw-w64"
}

build_sqlite() {
    fetch sqlite3
    (cd source && ./configure --disable-tcl --disable-readline && make sqlite3.c)
    "$host-gcc" -O2 -c source/sqlite3.c -o sqlite3.o
    "$host-ar" rcs "$folder/lib/libsqlite3.a" sqlite3.o
    cp source/sqlite3.h "$folder/include"
}

# Symlink Boost's headers only; adding /usr/include would pull in host headers.
build_boost() {
    ln -sfn /usr/include/boost /usr/include/rapidjson "$folder/include"
    cp /usr/share/doc/rapidjson-dev/copyright "$folder/licenses/rapidjson"
    fetch boost1.74
    local locale=source/libs/locale/src
    # shellcheck disable=SC2016 # the inner shell expands
    printf '%s\n' "$locale"/{encoding,shared,std,win32,util}/*.cpp |
        xargs -P "$jobs" -I {} sh -c '"$0" -std=c++17 -O2 -w -fvisibility=hidden -DBOOST_LOCALE_NO_POSIX_BACKEND=1 \
            -DBOOST_LOCALE_HIDE_AUTO_PTR -I "$2" -c "$1" -o "$(echo "$1" | tr / _).o"' \
            "$host-g++" {} "$folder/include"
    "$host-ar" rcs "$folder/lib/libboost_locale.a" ./*.o
}

build_googletest() {
    cmake -G Ninja -S /usr/src/googletest -B . -D CMAKE_SYSTEM_NAME=Windows -D CMAKE_BUILD_TYPE=Release \
        -D CMAKE_C_COMPILER="$host-gcc" -D CMAKE_CXX_COMPILER="$host-g++" -D CMAKE_INSTALL_PREFIX="$folder"
    cmake --build . -j "$jobs"
    cmake --install .
}

build_qt() {
    fetch qtbase-opensource-src
    mkdir build
    cd build
    ../source/configure -prefix "$folder" -xplatform win32-g++ -device-option "CROSS_COMPILE=$host-" \
        -opensource -confirm-license -release -shared -nomake examples -nomake tests -nomake tools \
        -no-opengl -no-dbus -no-openssl -no-icu -no-angle -no-direct2d -qt-zlib -qt-pcre -qt-libpng -qt-freetype \
        -qt-harfbuzz -qt-doubleconversion -no-libjpeg -no-gif -no-avx -no-avx2 -no-avx512 -no-feature-network \
        -no-feature-sql -no-feature-xml -no-feature-concurrent -no-feature-printer -no-feature-tabletevent \
        -no-feature-vulkan -no-feature-vkgen
    make -j "$jobs"
    make install
    # Linguist tools: use the host's.
    ln -sfn "/usr/lib/$(dpkg-architecture -q DEB_HOST_MULTIARCH)/cmake/Qt5LinguistTools" "$folder/lib/cmake"
}

for name in lists runtime sqlite boost googletest qt; do
    step "$name"
done
