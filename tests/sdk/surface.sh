#!/bin/sh
# What the plug-in calls of the framework is what surface.txt says, and it asks no object of the framework for its
# class: surface.sh PLUGIN FRAMEWORK NM LIST. A line more is a function that every maker's framework must have: think
# before you write the list anew with ORB_REWRITE_GOLDEN=1.
set -eu
plugin=$1 framework=$2 nm=$3 list=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# names FILE OPTION: demangled, as Qt 5 and 6 have them alike, without what moc makes and what inheriting brings along.
names() {
    "$nm" --dynamic --demangle "$2" "$1" | sed 's/^[0-9a-f ]* [A-Za-z] //; s/@.*//; s/QList<QString>/QStringList/g' |
        grep -vE '::(qt_metacall|qt_metacast|staticMetaObject|metaObject)|^(typeinfo|vtable|non-virtual thunk|virtual thunk)' |
        LC_ALL=C sort -u
}

names "$framework" --defined-only >"$work/offered"
names "$plugin" --undefined-only >"$work/wanted"
LC_ALL=C comm -12 "$work/wanted" "$work/offered" >"$work/called"
if grep -n '__dynamic_cast' "$work/wanted"; then
    echo "the plug-in asks an object for its class" >&2
    exit 1
fi
if [ "${ORB_REWRITE_GOLDEN:-}" ]; then
    { sed -n '/^#/p' "$list" && cat "$work/called"; } >"$work/list"
    cp "$work/list" "$list"
fi
grep -v '^#' "$list" | diff -u --label surface.txt --label "what the plug-in calls" - "$work/called"
