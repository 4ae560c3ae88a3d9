#!/usr/bin/env bash
# debian.sh PACKAGES CACHE: installs the packages of that folder into a clean Debian 12, as root, and uses them
# there. What was downloaded for it stays in the other folder.
# debian.sh --check: fails with a sentence where that is impossible.
set -euo pipefail
if [ "$1" = --check ]; then
    unshare --pid --fork --kill-child --mount-proc true 2>/dev/null && exit
    echo "The packages are tried in a container of their own, which cannot be made here: it takes root, and a root" \
        "folder that is a mount point (not a plain chroot)."
    exit 1
fi
umask 022
packages=$(realpath "$1")
mkdir -p "$2/archives"
cache=$(realpath "$2")
here=$(dirname "$(realpath "$0")")
version=$(dpkg-deb --field "$packages"/echotable_*.deb Version)

echo "== Permissions, maintainer scripts and notices"
for package in "$packages"/*.deb; do
    if dpkg-deb --contents "$package" | grep -v '^drwxr-xr-x root/root\|^-rw-r--r-- root/root\|^lrwx\|^-rwxr-xr-x root/root .* ./usr/bin/'; then
        echo "$package: unexpected permissions" && exit 1
    fi
    if dpkg-deb --ctrl-tarfile "$package" | tar -t | grep -E '^\./(pre|post)(inst|rm)$'; then
        echo "$package: has maintainer scripts" && exit 1
    fi
    [[ $package != *-dbgsym_* ]] || continue
    notice=$(dpkg-deb --fsys-tarfile "$package" | tar -xO --wildcards './usr/share/doc/*/copyright')
    [[ $notice == *"Milo Yip"* ]] || { echo "$package: lacks the notice of RapidJSON" && exit 1; }
done
for package in libtiv-{smartassert1,dbo1,echotable1,echotable-qt6-1} echotable echohost; do
    compgen -G "$packages/$package-dbgsym_*.deb" >/dev/null || { echo "$package-dbgsym is missing" && exit 1; }
done

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
chmod 755 "$root"
cd "$root/root" # where commands inside begin
cp -r "$packages" packages
cp -r "$here/consumer" consumer
cp -l "$cache"/archives/*.deb "$root/var/cache/apt/archives" 2>/dev/null || true

echo "== Library and programs"
inside apt-get update -q >"$cache/apt.log"
put ./packages/{libtiv-dbo1,libtiv-smartassert1,libtiv-echotable1,echotable,echohost}_*.deb
check "echotable $version" echotable --version
check "echohost $version" echohost --version
check "ECHO OPT LAST WERT VOLL \$ Lasten" \
    sh -c 'echotable set esk load=full | echotable telinp esk --settings - --language de'
for page in echotable echohost; do
    check ".TH ${page^^} 1 \"\" \"tiv_echotable $version\" \"User Commands\"" \
        sh -c "zcat /usr/share/man/man1/$page.1.gz | head -n 1"
done
inside echotable programs

echo "== A later version of the libraries"
mkdir later
for package in libtiv-{dbo1,smartassert1,echotable1}; do
    dpkg-deb --raw-extract "$packages/$package"_*.deb "later/$package"
    sed -i "s/^Version: .*/Version: $version+later/" "later/$package/DEBIAN/control"
    dpkg-deb --build "later/$package" "later/$package.deb" >/dev/null
done
put ./later/*.deb
check "echotable $version" echotable --version
check "echohost $version" echohost --version
put --allow-downgrades ./packages/libtiv-{dbo1,smartassert1,echotable1}_*.deb

for qt in 5 6; do
    echo "== Development files for Qt $qt"
    suffix=
    [ $qt = 5 ] || suffix=-qt6
    put ./packages/libtiv-{dbo1,smartassert1,echotable-common-dev,"echotable$suffix-dev"}_*.deb \
        ./packages/"libtiv-echotable${suffix:+-qt6-}"1_*.deb g++ cmake make pkg-config
    inside cmake -S consumer -B "build$qt" -D "PACKAGE=tiv_echotable${suffix/-/_}"
    inside cmake --build "build$qt"
    inside ctest --test-dir "build$qt" --output-on-failure
    # shellcheck disable=SC2016 # the inner shell expands
    inside sh -c 'g++ -std=c++17 -fPIC consumer/main.cpp $(pkg-config --cflags --libs "$0" tiv_dbo tiv_smartassert) -o by-pkg-config &&
        ./by-pkg-config | diff consumer/expected.txt -' "tiv_echotable$suffix"
done

echo "== No path of this machine"
if inside sh -c "dpkg-query --show --showformat '\${Package}\n' 'libtiv-*' echotable echohost | xargs dpkg --listfiles |
    xargs grep -sF --directories=skip '${here%/tests/package}'"; then
    exit 1
fi
