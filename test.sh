#!/bin/sh
# Builds everything and runs every test. Arguments go to ctest (./test.sh -R framing); then only what those tests need
# is built.
#
#     ./test.sh [--sanitize | --qt6 | --armhf] [--car CAR | ctest arguments]
#
# --sanitize does it under the address, leak and undefined-behaviour sanitizers, in a build folder that ./fuzz.sh has as
# well; --qt6 with Qt 6 in place of Qt 5, and --armhf for the processor of head units, under qemu-user, each in one of
# its own.
# --car foo runs what concerns that car: its sheet and its drives (the words are those of decoderbox --list).
set -eu
. "$(dirname "$0")/tools/setup.sh"

# The programs that other people read logs of a line with: the tests of headunit convert ask them.
need_packages tshark can-utils python3-can

if [ "${1:-}" = --sanitize ]; then
    shift
    configure_sanitized
    export ASAN_OPTIONS="detect_stack_use_after_return=1:strict_string_checks=1"
    export LSAN_OPTIONS="suppressions=$root/tools/leaks.supp:print_suppressions=0"
    export UBSAN_OPTIONS="print_stacktrace=1"
elif [ "${1:-}" = --qt6 ]; then
    shift
    need_packages clang qt6-base-dev qt6-l10n-tools libgl-dev
    build=${CANBUS_BUILD:-$root/build}-qt6
    # clang takes two thirds of the time that g++ takes for it.
    configure -DCANBUS_TESTS=ON -DCANBUS_QT_VERSION=6 -DCMAKE_CXX_COMPILER=clang++
elif [ "${1:-}" = --armhf ]; then
    shift
    need_packages g++-arm-linux-gnueabihf qemu-user mmdebstrap qtbase5-dev-tools
    build=${CANBUS_BUILD:-$root/build}-armhf
    step "Laying out Debian's armhf libraries (a minute the first time)"
    "$root/tools/armhf/root.sh" "$build/root"
    configure -DCANBUS_TESTS=ON -DCMAKE_TOOLCHAIN_FILE="$root/cmake/armhf.cmake" -DCANBUS_ARMHF_ROOT="$build/root"
    # What no processor changes, and what paints (docs/checking.md).
    set -- "$@" -E '^(source_rules|sdk_search|tables|sheet_|terms_|translations_|newcar|shown_commands|examples|sdk_build|tst_screens_)'
else
    configure -DCANBUS_TESTS=ON
fi

if [ "${1:-}" = --car ]; then
    car=${2:-}
    [ -f "$root/tests/cars/sheets/$car.txt" ] || fail "there is no tests/cars/sheets/$car.txt"
    shift 2
    set -- -C car -L "^car_$car\$" "$@"
fi

targets=all
if [ $# -gt 0 ]; then
    known=$(cmake --build "$build" --target help | sed -n 's/^\([^:/]*\): phony$/\1/p')
    targets=
    for name in $(cd "$build" && ctest -N "$@" | sed -n 's/^ *Test *#[0-9]*: //p'); do
        # A car's tests are a program with the car behind its name. What is no program of its own looks at the plug-in
        # or drives the head unit with a box.
        printf '%s\n' "$known" | grep -qx "$name" || name=${name%_*}
        printf '%s\n' "$known" | grep -qx "$name" || name="CanBus headunit decoderbox"
        targets="$targets $name"
    done
    [ -n "$targets" ] || fail "no such test: $*"
fi
# shellcheck disable=SC2086
build_targets $targets
step "Running the tests"
cd "$build"
exec ctest --output-on-failure --no-tests=error -j "$(nproc)" "$@"
