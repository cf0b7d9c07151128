#!/bin/sh
# The SDK's libraries are found in the SDK and nowhere else: sdk_search.sh SOURCE_FOLDER CMAKE
set -eu
source=$1
cmake=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# lay FOLDER LIBRARY...: a folder with a header and empty libraries.
lay() {
    folder=$work/$1
    shift
    mkdir -p "$folder/include" "$folder/lib"
    touch "$folder/include/orbapplication.h" "$folder/include/qextserialport.h"
    for library; do
        touch "$folder/lib/lib$library.so"
    done
}

# configure SDK [OPTION...]: what the SDK's own file of the build finds.
configure() {
    sdk=$work/$1
    shift
    rm -rf "$work/build"
    "$cmake" -S "$work" -B "$work/build" -DCANBUS_ORB_SDK="$sdk" "$@" >"$work/log" 2>&1
}

fail() {
    printf '%s\n' "$1" >&2
    cat "$work/log" "$work/build/CMakeCache.txt" >&2
    exit 1
}

cat >"$work/CMakeLists.txt" <<EOF
cmake_minimum_required(VERSION 3.16)
project(search NONE)
set(CMAKE_FIND_LIBRARY_PREFIXES lib)
set(CMAKE_FIND_LIBRARY_SUFFIXES .so)
include($source/cmake/CanBusSdk.cmake)
EOF
lay sdk OrbCommons qextserialport
lay poor-sdk OrbCommons
lay machine OrbCommons qextserialport

# As a toolchain file does that names a target's root.
configure sdk -DCMAKE_FIND_ROOT_PATH="$work/machine" -DCMAKE_FIND_ROOT_PATH_MODE_LIBRARY=ONLY \
    -DCMAKE_FIND_ROOT_PATH_MODE_INCLUDE=ONLY || fail "a root path hides the SDK"
[ "$(grep -cE "^(ORBCOMMONS|QEXTSERIALPORT)_[A-Z_:]*=$work/sdk/" "$work/build/CMakeCache.txt")" = 4 ] ||
    fail "something is not the SDK's"
configure poor-sdk -DCMAKE_PREFIX_PATH="$work/machine" && fail "the build machine's serial library was taken"
exit 0
