#!/bin/sh
# Builds the plug-in as for a head unit, against a folder that is laid out as a maker's SDK, and loads it:
#     build.sh SOURCE WORK CMAKE QT_VERSION COMPILER FRAMEWORK SERIAL_LIBRARIES SERIAL_HEADERS HEADUNIT
# WORK stays: the next run builds only what has changed.
set -eu
source=$1 work=$2 cmake=$3 qt=$4 compiler=$5 framework=$6 serial=$7 serial_headers=$8 headunit=$9
sdk=$work/sdk

rm -rf "$sdk"
mkdir -p "$sdk/include" "$sdk/lib"
# Nothing but the classes that every unit's framework has.
for header in airconditiondlg filesystemservice gpiooperater orbapplication orbchoicedialog orbcommons orbdialog \
    orbevent orbglobal orbiniconfig orbkeyfilter orbmainwindow orbplugin orbwindowmanager protocolutils \
    tableviewmodel updatedialog; do
    ln -s "$source/platform/orbcommons/include/$header.h" "$sdk/include/"
done
for header in "$serial_headers"/qextserialport*.h; do
    ln -s "$header" "$sdk/include/"
done
ln -s "$framework" "$sdk/lib/libOrbCommons.so"
# A maker's stands alone; ours comes with what watches the line.
echo "INPUT($serial)" >"$sdk/lib/libqextserialport.so"

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
