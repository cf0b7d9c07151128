#!/bin/sh
# Draws the PNG beside every SVG of the tree, in the size that the SVG states, where the SVG is newer or the PNG is
# missing. With --all every picture is drawn again. Needs rsvg-convert (librsvg2-bin).
set -eu

cd "$(dirname "$0")/.."
command -v rsvg-convert >/dev/null || {
    echo "render-icons.sh: rsvg-convert is missing; install librsvg2-bin" >&2
    exit 1
}

find . -name '*.svg' -not -path './.git/*' -not -path './build*/*' | sort | while read -r svg; do
    png="${svg%.svg}.png"
    if [ "${1:-}" = --all ] || [ ! -e "$png" ] || [ "$svg" -nt "$png" ]; then
        rsvg-convert --output "$png" "$svg"
        echo "$png"
    fi
done
