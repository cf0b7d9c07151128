#!/bin/sh
# What tools/golden.sh says to drives that do not fit their traces: complaints.sh SOURCE_FOLDER
set -eu
GOLDEN_DRIVES=$(mktemp -d)
export GOLDEN_DRIVES
trap 'rm -rf "$GOLDEN_DRIVES"' EXIT
cd "$GOLDEN_DRIVES"
golden=$1/tools/golden.sh
failed=0

# expect NAME WORDS: the drive fails, and the first line says so.
expect() {
    if said=$("$golden" "$1" 2>&1); then
        said="$said(passed)"
    fi
    case $(printf '%s\n' "$said" | head -n 1) in
    "$1: "*"$2"*) ;;
    *)
        printf 'expected "%s: ... %s", got: %s\n' "$1" "$2" "$said" >&2
        failed=1
        ;;
    esac
}

printf '1 key volume_up tap\n2 key mode tap\n' >jeep.scn
cp jeep.scn nobody-drives.scn
cp jeep.scn jeep-broken.scn
echo '1 jump' >>jeep-broken.scn
expect jeep 'there is no jeep.trace'
expect nobody-drives "knows no 'nobody'"
: >jeep-broken.trace
expect jeep-broken 'is empty'
echo x >jeep-broken.trace
expect jeep-broken 'headunit failed'
expect jeep-other 'there is no jeep-other.scn'

"$golden" --update jeep >/dev/null
"$golden" jeep
cp jeep.trace whole
head -n 12 whole >jeep.trace
expect jeep 'is cut at 1.'
sed '11s/true/false/' whole >jeep.trace
expect jeep 'differs at 1.025 s, row 11'
sed 's/2 key.*/2.5 key mode tap/' jeep.scn >changed && mv changed jeep.scn && mv whole jeep.trace
expect jeep 'differs at 2.'
exit $failed
