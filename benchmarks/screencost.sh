#!/bin/sh
# What screens cost: painted pixels and instructions of packages, instructions of openings. The same binary gives the
# same figures on every run.
#
#     benchmarks/screencost.sh [BUILD_FOLDER]
set -eu

program=${1:-build-benchmarks}/benchmarks/screencost
[ -x "$program" ] || { echo "no $program: configure with -DCANBUS_BENCHMARKS=ON and build" >&2; exit 1; }
command -v valgrind >/dev/null || { echo "valgrind is not installed" >&2; exit 1; }
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

# Leaves in $count the instructions of the program's work, and in $out/pixels what it printed.
count() {
    count=$(valgrind --tool=callgrind --callgrind-out-file="$out/callgrind" --toggle-collect='measured*' \
        "$program" "$@" 2>&1 >"$out/pixels" | awk '/Collected/ { print $NF }')
}

package() { # NAME SCREEN BEFORE PACKAGE
    name=$1
    shift
    count package "$@"
    printf '| %s | %s | %s |\n' "$name" "$(cat "$out/pixels")" "$count"
}

printf '| package | pixels | instructions |\n|---|---|---|\n'
range='50 10 01 08 02 00 00'
package 'driving data, another range' driving "$range" '50 10 01 09 02 00 00'
package 'driving data, the same range' driving "$range" "$range"
package 'tyre states, one tyre' tyres '65 00 01 00 02' '65 00 01 00 01'
package 'tyre warning, one tyre more' tyres '68 02 02' '68 0A 02'
package 'tyre warning, the same' tyres '68 02 02' '68 02 02'
package 'settings, one row' 778 '40 80 00 00' '40 80 01 00'
package 'settings, the same' 778 '40 80 00 00' '40 80 00 00'
climate='21 C0 43 08 08 00 00 00 00'
package 'climate, left temperature' driving "$climate" '21 C0 43 09 08 00 00 00 00'
package 'climate, fan' driving "$climate" '21 C0 44 08 08 00 00 00 00'
package 'climate, switched off' driving "$climate" '21 00 40 08 08 00 00 00 00'
package 'climate, the same' driving "$climate" "$climate"
package 'radar' driving '22 0A 0A 0A 0A 00 00' '22 14 0A 0A 0A 00 00'
for page in 771 773 775 778 782; do
    count first "$page"
    first=$count
    count open "$page"
    printf 'page %s: first opening %s instructions, later %s\n' "$page" "$first" "$count"
done
