#!/bin/sh
# Looks for inputs that break the plug-in or the bench, steered by coverage (libFuzzer, address and undefined-behaviour
# sanitizers, in build-sanitize/). Ends with 1 when it finds one.
#
#     ./fuzz.sh MINUTES [TARGET...]    each target gets its share of the time, as many at once as there are processors
#     ./fuzz.sh --ci                   half a minute for each, the same chances each time, nothing kept
#     ./fuzz.sh --again TARGET FILE    one input once more
#     ./fuzz.sh --save                 keeps the smallest inputs that reach all that was reached, in fuzz/saved/
#
# Targets: packages, link, update, texts, logs (docs/fuzzing.md). What was reached is kept in build-sanitize/inputs/, findings
# in build-sanitize/findings/.
set -eu
. "$(dirname "$0")/tools/setup.sh"

all_targets='packages link update texts logs'
seconds=30
seed=0 # libFuzzer's word for any
at_once=$(nproc)
mode=${1:-}
case $mode in
--ci)
    targets=$all_targets
    seed=1
    ;;
--save) targets=$all_targets ;;
--again)
    targets=${2:-}
    input=$(realpath "${3:-}")
    ;;
'' | *[!0-9]*) fail "MINUTES, --ci, --save, or --again TARGET FILE" ;;
*)
    shift
    targets=${*:-$all_targets}
    # shellcheck disable=SC2086
    count=$(set -- $targets && echo $#)
    [ "$at_once" -lt "$count" ] || at_once=$count
    seconds=$((mode * 60 * at_once / count))
    ;;
esac
for target in $targets; do
    case " $all_targets " in
    *" $target "*) ;;
    *) fail "no such target: $target ($all_targets)" ;;
    esac
done

configure_sanitized
# shellcheck disable=SC2046,SC2086
build_targets $(printf 'libfuzzer_%s ' $targets)

# Everything that a drive writes lies in a folder that goes with this script, in memory where that is possible.
if [ -d /dev/shm ]; then
    work=$(mktemp -d -p /dev/shm)
else
    work=$(mktemp -d)
fi
trap 'rm -rf "$work"' EXIT
export TMPDIR="$work"
export UBSAN_OPTIONS=print_stacktrace=1
# A report's stacks are for --again: keeping them takes a quarter of the time.
quick=malloc_context_size=0:quarantine_size_mb=1:max_malloc_fill_size=0:thread_local_quarantine_size_kb=16:detect_stack_use_after_return=0
inputs=$build/inputs
findings=$build/findings
mkdir -p "$inputs" "$findings"

# The longest input that is tried: a few orders, a page of a log.
longest() {
    case $1 in
    logs | texts) echo 1024 ;;
    *) echo 192 ;;
    esac
}

# Drives have a limit of their own, in the processor's time.
limit() {
    case $1 in
    link | update) echo 0 ;;
    *) echo 60 ;;
    esac
}

# gather TARGET FOLDER: what there is to begin with.
gather() {
    python3 "$root/fuzz/inputs.py" seeds "$1" "$2"
    python3 "$root/fuzz/inputs.py" unpack "$1" "$2"
}

# fuzz TARGET: reports runs, runs a second, and what was found; fails when that is something.
fuzz() {
    seeds=$work/seeds-$1
    gather "$1" "$seeds"
    kept=$inputs/$1
    [ "$mode" != --ci ] || kept=$work/kept-$1
    mkdir -p "$kept"
    log=$work/log-$1
    found=0
    ASAN_OPTIONS=$quick "$build/fuzz/libfuzzer_$1" -seed="$seed" -max_total_time="$seconds" -max_len="$(longest "$1")" -entropic=0 \
        -detect_leaks=0 -use_cmp=0 -rss_limit_mb=2048 -timeout="$(limit "$1")" -print_final_stats=1 -artifact_prefix="$findings/$1-" \
        "$kept" "$seeds" >"$log" 2>&1 || found=1
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log")
    printf '%-8s %10s runs %6s/s  %s findings\n' "$1" "${runs:-?}" "${rate:-?}" "$found"
    if [ "$found" = 1 ]; then
        file=$(sed -n 's/.*Test unit written to //p' "$log" | tail -n 1)
        grep -vE '^(#[0-9]|INFO|NEW_|\s*NEW)' "$log" | tail -n 20 >&2
        printf 'once more: ./fuzz.sh --again %s %s\n' "$1" "$file" >&2
    fi
    return "$found"
}

case $mode in
--again)
    exec "$build/fuzz/libfuzzer_$targets" "$input"
    ;;
--save)
    for target in $targets; do
        mkdir -p "$work/merged-$target" "$inputs/$target"
        gather "$target" "$work/seeds-$target"
        ASAN_OPTIONS=$quick "$build/fuzz/libfuzzer_$target" -merge=1 -detect_leaks=0 -max_len="$(longest "$target")" \
            "$work/merged-$target" "$work/seeds-$target" "$inputs/$target" >/dev/null 2>&1 || fail "merging $target failed"
        python3 "$root/fuzz/inputs.py" pack "$target" "$work/merged-$target"
        printf '%-8s %s inputs\n' "$target" "$(wc -l <"$root/fuzz/saved/$target.txt")"
    done
    ;;
*)
    failed=0
    set --
    for target in $targets; do
        # They take the same time, so the oldest is the next to end.
        if [ $# = "$at_once" ]; then
            wait "$1" || failed=1
            shift
        fi
        fuzz "$target" &
        set -- "$@" $!
    done
    for running in "$@"; do
        wait "$running" || failed=1
    done
    exit $failed
    ;;
esac
