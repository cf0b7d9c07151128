#!/bin/sh
# The plug-in exports create and destroy, and nothing else: exported_symbols.sh LIBRARY NM
set -eu
found=$("$2" --dynamic --defined-only "$1" | awk '$2 ~ /[TBDRVWu]/ { print $3 }' | sort | tr '\n' ' ')
[ "$found" = "create destroy " ] && exit 0
echo "$1 exports: $found" >&2
exit 1
