#!/bin/sh
# Builds the plug-in as for a head unit, against a folder that is laid out as a maker's SDK, and loads it:
#     build.sh SOURCE BUILD WORK CMAKE QT_VERSION COMPILER HEADUNIT
# WORK stays: the next run builds only what has changed.
set -eu
source=$1 built=$2 work=$3 cmake=$4 qt=$5 compiler=$6 headunit=$7
sdk=$work/sdk

rm -rf "$sdk"
CANBUS_BUILD=$built "$source/tools/sdk.sh" "$sdk"

launcher=
if command -v ccache >/dev/null; then
    launcher=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache
fi
# Unoptimised: what is looked for shows when it compiles, links and loads.
"$cmake" -S "$source" -B "$work/build" -G Ninja -U 'QEXTSERIALPORT_*' -U 'ORBCOMMONS_*' \
    -DCMAKE_BUILD_TYPE=Plain -DCMAKE_CXX_COMPILER="$compiler" \
    -DCANBUS_QT_VERSION="$qt" -DCANBUS_ORB_SDK="$sdk" $launcher
"$cmake" --build "$work/build" --target CanBus

trace=$(printf 'wait 300\nquit\n' |
    "$headunit" --headless --virtual-clock --can-bus-type 9 --decoder-box --plugin "$work/build/plugin/libCanBus.so" \
        --settings-dir "$work/settings" --trace - --script -)
case $trace in
*'"writeDatas", "args": ["2e8101017c"]'*) ;;
*)
    printf '%s\nthe plug-in does not speak\n' "$trace" >&2
    exit 1
    ;;
esac
