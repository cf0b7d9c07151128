#!/bin/sh
# Builds the Debian packages of the committed state into build-packages/, and has lintian look at them.
#
#     tools/packages.sh [--try]
#
# --try then installs them in a fresh Debian 12 (a folder that is thrown away; needs root), as a stranger would: runs
# the programs, drives a car, builds the examples, and removes everything again.
set -eu
. "$(dirname "$0")/setup.sh"

need_packages dpkg-dev debhelper lintian help2man bash-completion g++ cmake ninja-build qtbase5-dev \
    qttools5-dev-tools libcli11-dev
out=$root/build-packages
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
rm -rf "$out"
mkdir -p "$out" "$work/orb-canbus"
git -C "$root" archive HEAD | tar -x -C "$work/orb-canbus"

step "Building the packages (a few minutes)"
if ! (cd "$work/orb-canbus" && dpkg-buildpackage -us -uc -b) >"$out/build.log" 2>&1; then
    tail -n 40 "$out/build.log" >&2
    fail "dpkg-buildpackage failed; all of it is in build-packages/build.log"
fi
mv "$work"/*.deb "$work"/*.changes "$work"/*.buildinfo "$out"
ls -l "$out"/*.deb

step "Asking lintian"
lintian --allow-root --fail-on error "$out"/*.changes

[ "${1:-}" = --try ] || exit 0

need_packages mmdebstrap
step "Setting up a fresh Debian 12"
fresh=$work/fresh
mmdebstrap --quiet --variant=apt --include=ca-certificates bookworm "$fresh" </dev/null ||
    fail "mmdebstrap could not set it up"
cp "$out"/*.deb "$fresh/tmp"
inside() { chroot "$fresh" env DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen HOME=/tmp sh -euc "$1"; }
trap 'umount "$fresh/proc" "$fresh/dev/pts" "$fresh/dev" 2>/dev/null || true; rm -rf "$work"' EXIT
mount -t proc proc "$fresh/proc"
mount --bind /dev "$fresh/dev"
mount --bind /dev/pts "$fresh/dev/pts"

step "Installing"
inside 'apt-get update -qq
    apt-get install -qq -y --no-install-recommends /tmp/*.deb >/dev/null'
step "Running"
inside 'headunit --version && decoderbox --list | head -n 3 && test -e /usr/share/man/man1/headunit.1.gz'
inside 'headunit --headless --virtual-clock --can-bus-type CanBus_Raise_Toyota --trace - \
    --decoder-box /usr/share/orb/scenarios/toyota.scn >/tmp/trace && grep -c AirConditionDlg /tmp/trace'
step "Building the examples"
inside 'apt-get install -qq -y --no-install-recommends cmake make g++ pkg-config >/dev/null
    for example in plugin box; do
        cmake -S /usr/share/doc/liborbcommons-dev/examples/$example -B /tmp/$example >/dev/null
        cmake --build /tmp/$example >/dev/null
    done
    printf "event 51006 7 1\nwait 100\ntext lblKey\n" |
        headunit --headless --plugin /tmp/plugin/libHello.so --script - | grep "Key 7 pressed"
    printf "#include \"orbevent.h\"\nint main() { return int(OrbEvent(0, 0, 51001).getParam()); }\n" |
        g++ -fPIC -x c++ - -x none $(pkg-config --cflags --libs orbcommons) -o /tmp/byhand
    /tmp/byhand
    printf "wait 2000\npress volume_up\nwait 1000\n" | headunit --headless --virtual-clock --can-bus-type 9 \
        --box /tmp/box/libMyBox.so --trace - --script - | grep simulateKey'
step "Removing"
inside 'apt-get purge -qq -y orb-canbus-workbench orb-canbus-plugin liborbcommons-dev liborbcommons1 >/dev/null
    left=$(find / -xdev \( -iname "*orbcommons*" -o -name "headunit*" -o -path "*/share/orb*" \) -not -path "/tmp/*" \
        -not -path "/proc/*")
    [ -z "$left" ] || { echo "left behind: $left" >&2; exit 1; }'
step "All four packages install, run and go"
