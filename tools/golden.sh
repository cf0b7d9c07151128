#!/bin/sh
# The golden drives: each scenarios/NAME.scn, played under the virtual clock, writes the trace scenarios/NAME.trace to the byte.
#
#     tools/golden.sh [NAME...]           what has changed (all drives, or those that are named); nothing changed: no output
#     tools/golden.sh --update [NAME...]  writes the traces anew; look at the difference before you commit it
#     tools/golden.sh --list              each drive, the box that plays it, the rows of its trace
#
# CANBUS_BUILD names the build folder (default: build) with headunit and decoderbox in it, CANBUS_EMULATOR what runs them
# if that is not this machine. docs/golden-drives.md says more.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
build=${CANBUS_BUILD:-$root/build}
drives=${GOLDEN_DRIVES:-$root/scenarios}
headunit="${CANBUS_EMULATOR:-} $build/workbench/headunit/headunit"
decoderbox="${CANBUS_EMULATOR:-} $build/workbench/decoderbox/decoderbox"
work=$(mktemp -d)
# A drive writes the version file, as a unit does.
left=$([ -e /tmp/can_version ] || echo /tmp/can_version)
trap 'rm -rf "$work" $left' EXIT

complain() {
    printf '%s: %s\n' "$name" "$*"
    failed=1
}

# type NAME: the CAN-bus type of the box that plays the drive; nothing when there is none.
type_of() {
    $decoderbox --list | awk -v car="${1%%-*}" '$3 == car && $4 == "box" { print $1 }'
}

# drive NAME TYPE: leaves the trace in $work/trace. The run sees relative paths only, and a disk with firmware.
drive() {
    rm -rf "$work/run"
    mkdir -p "$work/run/disk"
    seq 1 1000 >"$work/run/disk/can_xinhang.bin"
    cp "$drives/$1.scn" "$work/run/drive.scn"
    set -- "$2" "$drives/$1.script"
    type=$1
    script=$2
    set --
    if [ -f "$script" ]; then
        cp "$script" "$work/run/drive.script"
        # shellcheck disable=SC2046
        set -- --script drive.script $(sed -n 's/^# options: //p' "$script")
    fi
    (cd "$work/run" && TZ=UTC $headunit --headless --virtual-clock --can-bus-type "$type" --decoder-box drive.scn \
        --settings-dir settings --trace ../trace "$@" 2>../errors)
}

# The first rows that differ, with three before them.
show_difference() {
    awk -v name="$name" '
        function time(row) { return row ~ /"t": / ? substr(row, 7, index(row, ",") - 7) " s" : "its end" }
        NR == FNR { was[FNR] = $0; rows = FNR; next }
        !found && $0 != was[FNR] { found = FNR }
        found && FNR < found + 5 { now = now "  now      " $0 "\n" }
        { last = FNR }
        END {
            if (!found && rows > last) found = last + 1
            if (rows < found) printf "%s: %s.trace is cut at %s, row %d\n", name, name, time(was[rows]), rows
            else printf "%s: differs at %s, row %d\n", name, time(was[found]), found
            for (i = found > 3 ? found - 3 : 1; i < found; ++i) print "           " was[i]
            for (i = found; i < found + 5 && i <= rows; ++i) print "  recorded " was[i]
            printf "%s", now
        }' "$drives/$name.trace" "$work/trace"
}

check() {
    trace=$drives/$name.trace
    type=$(type_of "$name")
    if [ ! -f "$drives/$name.scn" ]; then
        complain "there is no $name.scn"
    elif [ -z "$type" ]; then
        complain "no box plays this drive: decoderbox --list knows no '${name%%-*}'"
    elif [ "$mode" = list ]; then
        printf '%s %s %s\n' "$name" "$type" "$([ ! -f "$trace" ] || wc -l <"$trace")"
    elif [ "$mode" = check ] && [ ! -f "$trace" ]; then
        complain "there is no $name.trace; tools/golden.sh --update $name writes it"
    elif [ "$mode" = check ] && [ ! -s "$trace" ]; then
        complain "$name.trace is empty"
    elif ! drive "$name" "$type"; then
        complain "headunit failed"
        grep '^headunit: ' "$work/errors" || cat "$work/errors"
    elif [ "$mode" = update ]; then
        cmp -s "$work/trace" "$trace" || { cp "$work/trace" "$trace" && printf '%s: written\n' "$name"; }
    elif ! cmp -s "$work/trace" "$trace"; then
        show_difference
        failed=1
    fi
}

mode=check
case ${1:-} in
--update | --list) mode=${1#--} && shift ;;
-*) sed -n '2,/^set/s/^# \{0,1\}//p' "$0" && exit 2 ;;
esac
if [ $# -eq 0 ]; then
    # shellcheck disable=SC2046
    set -- $(cd "$drives" && find . -maxdepth 1 -name '*.scn' -o -maxdepth 1 -name '*.trace' | sed 's/^..//; s/\.[a-z]*$//' | sort -u)
fi
failed=0
for name in "$@"; do
    check
done
exit $failed
