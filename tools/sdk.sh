#!/bin/sh
# Lays out a folder as a maker's SDK has it, from what is built, for CANBUS_ORB_SDK: the classes that every unit's
# framework has, and the serial library.
#
#     tools/sdk.sh FOLDER
#
# CANBUS_BUILD names the build folder (default: build). Then: cmake -DCANBUS_ORB_SDK=FOLDER ...
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
build=${CANBUS_BUILD:-$root/build}
sdk=${1:?usage: tools/sdk.sh FOLDER}

fail() {
    printf '%s\n' "sdk.sh: $1" >&2
    exit 1
}

# kept VARIABLE: what the build was configured with.
kept() { sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"; }

# built NAME: the library of that name.
built() { find "$build/platform" -name "$1" | head -n 1; }

framework=$(built libOrbCommons.so)
[ -n "$framework" ] || fail "there is no libOrbCommons.so in $build: build it first"
mkdir -p "$sdk/include" "$sdk/lib"
for header in airconditiondlg filesystemservice gpiooperater orbapplication orbchoicedialog orbcommons orbdialog \
    orbevent orbglobal orbiniconfig orbkeyfilter orbmainwindow orbplugin orbwindowmanager protocolutils \
    tableviewmodel updatedialog; do
    cp -p "$root/platform/orbcommons/include/$header.h" "$sdk/include/"
done
cp -Lp "$framework" "$sdk/lib/libOrbCommons.so"
if [ -n "$(built libqextserialport.a)" ]; then
    cp -p "$root"/platform/qextserialport/qextserialport*.h "$sdk/include/"
    cp -p "$(built libqextserialport.a)" "$sdk/lib/libqextserialport_alone.a"
    cp -Lp "$(built liborbserialtap.so)" "$sdk/lib/liborbserialtap.so.1"
    # A maker's stands alone; ours comes with what watches the line.
    echo "INPUT(libqextserialport_alone.a liborbserialtap.so.1)" >"$sdk/lib/libqextserialport.so"
else
    cp -p "$(kept QEXTSERIALPORT_INCLUDE_DIR)"/qextserialport*.h "$sdk/include/"
    cp -Lp "$(kept QEXTSERIALPORT_LIBRARY)" "$sdk/lib/"
fi
