#!/bin/sh
# The tables that people read say what the boxes' catalog says: tables.sh SOURCE_FOLDER DECODERBOX
set -eu
cd "$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# agree WHAT: the files "wanted" and "found" hold the same lines.
agree() {
    diff "$work/wanted" "$work/found" >"$work/difference" && return 0
    printf '%s (< wanted, > found):\n' "$1" >&2
    cat "$work/difference" >&2
    touch "$work/failed"
}

"$2" --list >"$work/list"

awk '{ print $1, $2 }' "$work/list" >"$work/wanted"
sed -nE 's/^\| ([0-9]+) \| `(CanBus_[A-Za-z0-9_]+)` \|.*/\1 \2/p' README.md >"$work/found"
agree "README.md's table of cars and decoderbox --list"

# Demonstration drives by car; the others have a word more in their name.
find scenarios -name '*.scn' -not -name '*-*' | sed 's,.*/,,; s,\.scn$,,' | sort >"$work/drives"
awk 'NR == FNR { drives[$1]; next } $3 in drives { print $3 ".scn", $2, $1 }' "$work/drives" "$work/list" >"$work/wanted"
sed -nE 's/^\| `([a-z0-9]+\.scn)` \| `(CanBus_[A-Za-z0-9_]+)` \| ([0-9]+) \|.*/\1 \2 \3/p' scenarios/README.md >"$work/found"
agree "scenarios/README.md's table of drives and the drives that are there"

[ ! -e "$work/failed" ]
