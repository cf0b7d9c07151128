#!/bin/sh
# Whether docs/boxes/NAME.md, or for "matrix" docs/boxes/README.md, is what the plug-in does.
#
#     sheet.sh NAME HEADUNIT SOURCES
#
# With ORB_REWRITE_GOLDEN=1 it is written anew; its difference is then to be read.
set -eu
boxes=$3/docs/boxes
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$boxes"/*.md "$work"
if [ "$1" = matrix ]; then
    page=README.md
    type=1 # has no sheet of its own
else
    page=$1.md
    type=$1
fi
"$2" probe --all "$work" --can-bus-type "$type" --drives "$3/scenarios"
if [ "${ORB_REWRITE_GOLDEN:-}" ]; then
    cp "$work/$page" "$boxes/$page"
elif ! diff -U1 "$boxes/$page" "$work/$page"; then
    echo "docs/boxes/$page is stale: ORB_REWRITE_GOLDEN=1 ctest -R sheet_$1 writes it anew"
    exit 1
fi
