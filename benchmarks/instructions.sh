#!/bin/sh
# Counts instructions with callgrind and prints them as ratios to E, the cost of the signal alone (an array that is
# there already, emitted to one slot). The same binary and inputs give the same figures on every run.
#
#     benchmarks/instructions.sh [BUILD_FOLDER]
set -eu

build=${1:-build-benchmarks}
program=$build/benchmarks/instructions
[ -x "$program" ] || { echo "no $program: configure with -DCANBUS_BENCHMARKS=ON and build" >&2; exit 1; }
command -v valgrind >/dev/null || { echo "valgrind is not installed" >&2; exit 1; }
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

# Instructions of one piece of work, divided by its count.
count() { # WORK READ_SIZE COUNT
    valgrind --tool=callgrind --callgrind-out-file="$out/callgrind" --toggle-collect='measured*' \
        --toggle-collect='ProtocolUtils::onPollTimer*' \
        "$program" "$1" "$2" "$3" 2>&1 >/dev/null |
        awk -v n="$3" '/Collected/ { printf "%.2f", $NF / n }'
}

ratio() { # A B LIMIT
    awk -v a="$1" -v b="$2" -v limit="$3" 'BEGIN { printf "%.3f (at most %s) %s\n", a / b, limit, a / b <= limit ? "" : "EXCEEDED" }'
}

less() { awk -v a="$1" -v b="$2" 'BEGIN { print a - b }'; }

e=$(count emit 1 20000)
echo "E, the signal alone: $e instructions"
echo "A package of 8 data bytes through read step, hooks, signal and slot, without the device's own share, in E:"
for limit in 4096:1.59 38:1.77 16:2.02; do
    size=${limit%:*}
    all=$(count clean "$size" 20000)
    device=$(count device "$size" 20000)
    printf '  reads of %4s bytes: %7s, device %6s: ' "$size" "$all" "$device"
    ratio "$(less "$all" "$device")" "$e" "${limit#*:}"
    [ "$size" != 4096 ] || clean=$all
done
printf 'One corrupt byte in twenty packages, to a clean stream: '
ratio "$(count corrupted 4096 20000)" "$clean" 1.05
printf 'Every byte a start byte, instructions a byte: '
ratio "$(count startbytes 4096 1048576)" 1 300
printf 'Start bytes with long lengths, instructions a byte: '
one=$(count longlengths 4096 1048575)
ratio "$one" 1 300
printf 'The same, 4 MiB to 1 MiB in one call, per byte: '
ratio "$(count longlengths 4194304 4194303)" "$(count longlengths 4194304 1048575)" 1.02
printf 'Heap allocations a package in the steady state: '
"$program" allocations 16 20000
printf 'A poll of a silent terminal, instructions: '
count polls 1 20000
printf ', heap allocations '
"$program" pollallocations 1 20000
printf 'Good packages lost for each corrupted byte (at most 0.004): '
"$program" loss 4096 4000000
