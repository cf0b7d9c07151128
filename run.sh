#!/bin/sh
# Starts the head unit on the desk with a virtual decoder box and a demonstration drive.
#
#     ./run.sh [CAR] [headunit options]
#
# CAR: toyota (default) or another one with a drive in scenarios/. Without a display the same drive runs
# offscreen: what the car reports is printed, and screenshots are left in screenshots/.
set -eu
. "$(dirname "$0")/tools/setup.sh"

# The cars with a box and a drive.
cars() {
    "$build/workbench/decoderbox/decoderbox" --list | while read -r _ _ name has_box; do
        [ "$has_box" != box ] || [ ! -f "$root/scenarios/$name.scn" ] || printf '%s ' "$name"
    done
}

car=toyota
case ${1:-} in
'' | -*) ;;
*)
    car=$1
    shift
    ;;
esac
configure -DCANBUS_WORKBENCH=ON
build_targets CanBus headunit decoderbox
type=$("$build/workbench/decoderbox/decoderbox" --list | awk -v car="$car" '$3 == car && $4 == "box" { print $2 }')
drive=$root/scenarios/$car.scn
[ -n "$type" ] && [ -f "$drive" ] || fail "no such car: $car ($(cars))"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
headunit() {
    "$build/workbench/headunit/headunit" --can-bus-type "$type" --decoder-box "$drive" --settings-dir "$work" "$@"
}

# What somebody at the unit does once the drive is over, as script lines.
at_the_end() {
    [ "$car" = xinhang ] || return 0
    echo "disk 1 1 \"$work/disk\""
    echo "wait 2000"
    echo "click btnOk"
}
if [ "$car" = xinhang ]; then
    # A disk with new firmware for the box, and all the settings that the box knows.
    mkdir "$work/disk"
    head -c 100000 /dev/urandom >"$work/disk/can_xinhang.bin"
    set -- --factory SettingItemTypes=128,129,130,131,132,133,134,135,136,137,138,144,145,146,147,148 "$@"
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    step "The head unit on the desk: $car (close the window to end)"
    {
        echo "wait 50000"
        at_the_end
        echo "wait 86400000"
    } >"$work/script"
    headunit --script "$work/script" "$@" >/dev/null
    exit
fi

step "No display: the drive of $car runs offscreen, for about a minute; here is what the car reports"
mkdir -p "$root/screenshots"
# A picture every five seconds. The framer's own lines are left out of what is printed.
script() {
    for picture in 01 02 03 04 05 06 07 08 09 10 11 12; do
        echo "wait 5000"
        echo "screenshot \"$root/screenshots/$car-$picture.png\""
        [ $picture != 10 ] || at_the_end
    done
}
script | QT_QPA_PLATFORM=offscreen headunit --trace - --script - "$@" | grep -v '"object": *"ProtocolUtils"'
step "Screenshots are in screenshots/"
