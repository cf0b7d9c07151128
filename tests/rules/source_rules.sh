#!/bin/sh
# Rules about the sources that no compiler checks: source_rules.sh SOURCE_FOLDER
set -eu
cd "$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# complain RULE: fails when there is anything on standard input, and shows it. It stands at the end of pipes, in a
# shell of its own: only a file outlives it.
complain() {
    found=$(cat)
    [ -n "$found" ] || return 0
    printf '%s:\n%s\n' "$1" "$found" >&2
    touch "$work/failed"
}

portable=$(find plugin platform/orbcommons -name '*.cpp' -o -name '*.h' | sort)

# One source for three Qt generations. These came after 4.8, or went with 6.
later='QStringLiteral|QRegularExpression|QLoggingCategory|QSaveFile|QStandardPaths|QCommandLineParser|QSignalBlocker|QOverload|qAsConst|QStringView|Qt::endl|QJson|\.noquote\(\)|Q_ENUM\(|qInfo\(|->grab\(|setSectionResizeMode|QTemporaryDir|qInstallMessageHandler|toHex\([^)]|\.chopped\(|constFirst|constLast|QFileInfo::exists\(|removeRecursively|pixelColor|QRandomGenerator|qEnvironmentVariable|singleShot\([^;"]*\[|Q(Map|Hash|MultiMap|MultiHash)<[^;]*>( \w+)?( =)? *\{'
gone='QRegExp|QDesktopWidget|QLinkedList|qrand|QMatrix\b|SkipEmptyParts|[sS]ize(\(\))?\.scaled?\(|\bforeach *\('
# shellcheck disable=SC2086
grep -nE "$later|$gone" $portable | complain "not in every Qt generation"
# The unit's serial library waits for bytes in a read: it is asked first how many are there.
for file in $(grep -lE 'device->read\(' $portable); do
    awk '/bytesAvailable\(\)/ { asked = NR } /device->read\(/ && (!asked || NR - asked > 15) { print FILENAME ":" NR ": " $0 }' "$file"
done | complain "a read of the line that may wait"
# shellcheck disable=SC2086
grep -nE 'connect\([^;]*&[A-Za-z_]+::[A-Za-z_]+' $portable | complain "functor connect"
# shellcheck disable=SC2086
grep -n 'QT_VERSION' $portable | complain "version check outside orbqtcompat.h"

# Qt 4.8's QElapsedTimer has no constructor: a member is garbage until it is invalidated, or started as a clock is.
# shellcheck disable=SC2086
grep -HoE '^ +QElapsedTimer \w+;' $portable | sed 's/: *QElapsedTimer / /; s/;//' | while read -r file member; do
    case $member in *clock | timer) begin=start ;; *) begin=invalidate ;; esac
    source=${file%.h}
    cat "$file" "${source%_p}.cpp" 2>/dev/null | grep -qE "^ +$member\.$begin\(\);" || echo "$file: $member"
done | complain "a timer that is not initialised"

# Arrows point one way.
grep -rnE '#include.*"(orbhost|orbtrace|orbhost_p|windowstack)' plugin --include='*.cpp' --include='*.h' |
    complain "the plug-in looks behind the framework's interface"
grep -rnE '#include.*(canbus_|raiseadapter|core/|volkswagen/|xinhang/)' platform workbench --include='*.cpp' --include='*.h' |
    complain "platform or workbench knows an adapter"

# The house has floors: each folder of the plug-in stands on the ones before it and includes nothing above itself, and
# no neighbour. core/ knows no car.
floors='core: raise:core xinhang:core decoders:core,raise volkswagen:core,raise'
for floor in $floors; do
    folder=${floor%%:*}
    below=${floor#*:}
    for other in core raise xinhang decoders volkswagen; do
        case ,$folder,$below, in *,$other,*) continue ;; esac
        grep -rnE "#include [\"<](\.\./)*(plugin/)?$other/" "plugin/$folder" --include='*.cpp' --include='*.h' |
            complain "an include that climbs, from $folder/ to $other/"
    done
done
grep -rnE '#include "\.\./' plugin --include='*.cpp' --include='*.h' | complain "an include that leaves its folder by .."

# Each decoder's file is named after its class and opens with box, car and the type number that it registers.
for file in $(grep -rlE '^CANBUS_ADAPTER\(' plugin --include='*.cpp' | sort); do
    constant=$(sed -nE 's/^CANBUS_ADAPTER\((\w+), .*/\1/p' "$file")
    class=$(sed -nE 's/^CANBUS_ADAPTER\(\w+, (\w+)\).*/\1/p' "$file")
    number=$(sed -nE "s/^ *$constant = ([0-9]+).*/\1/p" plugin/core/canbustype.h)
    head -n 1 "$file" | grep -qE "^// .* decoder box( in an? .+)?, CAN-bus type $number\.$" ||
        echo "$file: // ... decoder box in a ..., CAN-bus type $number." | complain "a decoder's first line"
    [ "$(basename "$file" .cpp)" = "$(echo "$class" | tr '[:upper:]' '[:lower:]')" ] ||
        echo "$file: $class" | complain "a decoder's file is not named after its class"
done

# What tools/new-car wrote is not a car before each mark is gone.
grep -rn 'FILL:' README.md plugin workbench scenarios tests/cars/sheets tests/decoderbox/boxes |
    complain "a row of a new car that is to be filled in"

# Key codes have names, pinned in one header.
grep -rnE '0x0?1[01]0[0-9A-Fa-f]{4}\b' plugin --include='*.cpp' --include='*.h' | grep -v 'core/carkeys.h' |
    grep -vE '0x0?1000000\b' |
    complain "key code as a number"

# Every quirk has a test that fails when somebody mends it, and the other way round.
grep -rhoE 'QUIRK [a-z0-9-]+' plugin platform | sed 's/QUIRK //; s/-/_/g' | sort -u >"$work/tagged"
grep -rhoE 'quirk_[a-z0-9_]+' tests | sed 's/quirk_//' | sort -u >"$work/tested"
comm -23 "$work/tagged" "$work/tested" | complain "quirks without a test"
comm -13 "$work/tagged" "$work/tested" | complain "tests of quirks that are not tagged"

[ ! -e "$work/failed" ]
