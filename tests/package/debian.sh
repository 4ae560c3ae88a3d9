#!/usr/bin/env bash
# debian.sh PACKAGES CACHE: installs the packages of that folder into a clean Debian 12, as root, and uses them
# there. What was downloaded for it stays in the other folder.
set -euo pipefail
packages=$(realpath "$1")
mkdir -p "$2/archives"
cache=$(realpath "$2")
here=$(dirname "$(realpath "$0")")
version=$(dpkg-deb --field "$packages"/echotable_*.deb Version)

root=$(mktemp --directory "$cache/root.XXXXXX")
trap 'rm -rf "$root"' EXIT
inside() { # <command>...; what it starts and mounts ends with it
    unshare --pid --fork --kill-child --mount-proc --root="$root" --wd=/root \
        env --ignore-environment PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen "$@"
}
put() { # <package>...
    local log=$cache/apt.log
    inside apt-get install -q -y --no-install-recommends "$@" >"$log" 2>&1 || { cat "$log" && false; }
    cp -nl "$root"/var/cache/apt/archives/*.deb "$cache/archives"
}
check() { # <expected> <command>...
    local output
    output=$(inside "${@:2}")
    [ "$output" = "$1" ] || { echo "${*:2}: $output, expected $1" && false; }
}

if [ ! -e "$cache/base.tar" ]; then
    debootstrap --variant=minbase bookworm "$root"
    tar -C "$root" -cf "$cache/base.part" .
    mv "$cache/base.part" "$cache/base.tar"
else
    tar -C "$root" -xf "$cache/base.tar"
fi
cd "$root/root" # where commands inside begin
cp -r "$packages" packages
cp -r "$here/consumer" consumer
cp -l "$cache"/archives/*.deb "$root/var/cache/apt/archives" 2>/dev/null || true

echo "== Library and programs"
inside apt-get update -q >"$cache/apt.log"
put ./packages/{libtiv-echotable[0-9],echotable,echohost}*.deb
check "echotable $version" echotable --version
check "echohost $version" echohost --version
check "ECHO OPT LAST WERT VOLL \$ Lasten" \
    sh -c 'echotable set esk load=full | echotable telinp esk --settings - --language de'
for page in echotable echohost; do
    check ".TH ${page^^} 1 \"\" \"tiv_echotable $version\" \"User Commands\"" \
        sh -c "zcat /usr/share/man/man1/$page.1.gz | head -n 1"
done
inside echotable programs

echo "== Development files"
put ./packages/libtiv-echotable-dev*.deb g++ cmake make
inside cmake -S consumer -B build
inside cmake --build build
inside ctest --test-dir build --output-on-failure

echo "== No path of this machine"
if inside sh -c "dpkg --listfiles libtiv-echotable${version%%.*} libtiv-echotable-dev echotable echohost |
    xargs grep -sF --directories=skip '${here%/tests/package}'"; then
    exit 1
fi
