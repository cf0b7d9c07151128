#!/bin/sh
# Lays out Debian's armhf libraries in a folder, for the cross compiler and for qemu-user; those that are there already
# stay.
#
#     tools/armhf/root.sh FOLDER
#
# Packages come from where apt has this machine's own. FOLDER/run runs a program that was built against the folder.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
[ $# -eq 1 ] || { sed -n '2,/^set/s/^# \{0,1\}//p' "$0" && exit 2; }
mkdir -p "$1"
folder=$(cd "$1" && pwd)

lay_out() {
    # shellcheck source=/dev/null
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    # shellcheck disable=SC2016 # apt's own variables
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Component: main' "Release: $release" |
        head -n 1)
    [ -n "$mirror" ] || { echo "$0: apt has no list of $release's packages; apt-get update?" >&2 && exit 1; }
    rm -rf "${folder:?}"/*
    mmdebstrap --quiet --variant=extract --architectures=armhf \
        --include=qtbase5-dev,libcli11-dev,libc6-dev,libstdc++-12-dev "$release" "$folder" "$mirror" </dev/null

    # qemu looks for each file here first: what is no library is to be this machine's.
    find "$folder" "$folder/usr" -mindepth 1 -maxdepth 1 -not -name lib -not -name usr -not -name include \
        -not -name share -exec rm -rf {} +
    find "$folder/usr/share" -mindepth 1 -maxdepth 1 -not -name cmake -exec rm -rf {} +
    # Qt's build tools run here.
    for tool in qt5/bin/moc qt5/bin/rcc qt5/bin/uic arm-linux-gnueabihf/qt5/bin/qmake; do
        ln -sf "/usr/lib/qt5/bin/$(basename "$tool")" "$folder/usr/lib/$tool"
    done
}

[ -e "$folder/run" ] || lay_out
arm-linux-gnueabihf-gcc --sysroot="$folder" -O2 -Wall -Wextra -Werror -shared -fPIC "$here/emulated.c" \
    -o "$folder/usr/lib/emulated.so"
cp "$here/run" "$folder/run" # last: it says that the folder is whole
