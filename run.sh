#!/bin/sh
# Starts the head unit on the desk with a virtual decoder box and a demonstration drive.
#
#     ./run.sh [CAR] [headunit options]
#
# CAR: toyota (default), honda, gm, jeep, mazda, xinhang, volkswagen. Without a display the same drive runs
# offscreen: what the car reports is printed, and screenshots are left in screenshots/.
set -eu
. "$(dirname "$0")/tools/setup.sh"

car=toyota
case ${1:-} in
'' | -*) ;;
*)
    car=$1
    shift
    ;;
esac
case $car in
toyota) type=CanBus_Raise_Toyota ;;
honda) type=CanBus_Raise_Honda ;;
gm) type=CanBus_Raise_GM ;;
jeep) type=CanBus_Raise_Jeep ;;
mazda) type=CanBus_XBS_Mazda ;;
xinhang) type=CanBus_XinHang ;;
volkswagen) type=CanBus_Raise_Volkswagen ;;
*) fail "no such car: $car (toyota, honda, gm, jeep, mazda, xinhang, volkswagen)" ;;
esac

configure_and_build CanBus headunit decoderbox -- -DCANBUS_WORKBENCH=ON
settings=$(mktemp -d)
trap 'rm -rf "$settings"' EXIT
drive=$root/scenarios/$car.scn
headunit() {
    "$build/workbench/headunit/headunit" --can-bus-type "$type" --decoder-box "$drive" \
        --settings-dir "$settings" "$@"
}

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    step "The head unit on the desk: $car (close the window to end)"
    headunit "$@"
    exit
fi

step "No display: the drive of $car runs offscreen, for about a minute; here is what the car reports"
mkdir -p "$root/screenshots"
# A picture every few seconds. The framer's own lines are left out of what is printed.
script() {
    picture=1
    while [ $picture -le 12 ]; do
        echo "wait 5000"
        echo "screenshot \"$root/screenshots/$car-$(printf %02d $picture).png\""
        picture=$((picture + 1))
    done
    echo quit
}
script | QT_QPA_PLATFORM=offscreen headunit --trace - --script - "$@" | grep -v '"object": *"ProtocolUtils"'
step "Screenshots are in screenshots/"
