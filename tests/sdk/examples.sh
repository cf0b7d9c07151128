#!/bin/sh
# Installs what is built into a folder, builds the examples against it as a stranger does, and runs them there:
#     examples.sh SOURCE BUILD CMAKE
set -eu
source=$1 build=$2 cmake=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/moved/usr

fail() {
    printf '%s\n' "$1" >&2
    exit 1
}

# Installed in one place and moved to another: nothing may remember the first.
"$cmake" --install "$build" --prefix "$work/usr" >/dev/null
mkdir "$work/moved"
mv "$work/usr" "$prefix"
for example in plugin box; do
    cp -r "$source/examples/$example" "$work"
    "$cmake" -S "$work/$example" -B "$work/build-$example" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
    "$cmake" --build "$work/build-$example" >"$work/log" || fail "$(cat "$work/log")"
done

printf 'event 51006 7 1\nwait 100\ntext lblKey\n' |
    "$prefix/bin/headunit" --headless --plugin "$work/build-plugin/libHello.so" --settings-dir "$work" --script - |
    grep -q 'Key 7 pressed' || fail "the smallest plug-in does not show the key"
printf 'wait 2000\npress volume_up\nexpect simulateKey within 1000\nset doors.front_left on\nexpect dispatchOrbEvent within 1000\n' |
    "$prefix/bin/headunit" --headless --virtual-clock --can-bus-type toyota --box "$work/build-box/libMyBox.so" \
        --settings-dir "$work" --script - --strict || fail "the smallest box says nothing that the plug-in hears"

printf '#include "orbevent.h"\nint main() { return int(OrbEvent(0, 0, 51001).getParam()); }\n' >"$work/byhand.cpp"
# shellcheck disable=SC2046
c++ -fPIC "$work/byhand.cpp" -o "$work/byhand" \
    $(PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name orbcommons.pc)") pkg-config --cflags --libs orbcommons)
LD_LIBRARY_PATH=$(dirname "$(find "$prefix" -name libOrbCommons.so)") "$work/byhand" || fail "orbcommons.pc misleads"
