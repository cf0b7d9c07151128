#!/bin/sh
# Rules about the sources that no compiler checks: source_rules.sh SOURCE_FOLDER
set -eu
cd "$1"
failed=0

# complain RULE: fails when there is anything on standard input, and shows it.
complain() {
    found=$(cat)
    [ -n "$found" ] || return 0
    printf '%s:\n%s\n' "$1" "$found" >&2
    failed=1
}

portable=$(find plugin platform/orbcommons -name '*.cpp' -o -name '*.h' | sort)

# One source for three Qt generations. These came after 4.8, or went with 6.
# shellcheck disable=SC2086
grep -nE 'QStringLiteral|QRegularExpression|QLoggingCategory|QSaveFile|QStandardPaths|QCommandLineParser|QSignalBlocker|QOverload|qAsConst|QStringView|Qt::endl|QJson|\.noquote\(\)|Q_ENUM\(|qInfo\(|QRegExp|QDesktopWidget|->grab\(|setSectionResizeMode|QLinkedList|qrand|QMatrix\b|SkipEmptyParts|\bforeach *\(' $portable |
    complain "not in every Qt generation"
# shellcheck disable=SC2086
grep -nE 'connect\([^;]*&[A-Za-z_]+::[A-Za-z_]+' $portable | complain "functor connect"
# shellcheck disable=SC2086
grep -n 'QT_VERSION' $portable | complain "version check outside orbqtcompat.h"

# Arrows point one way.
grep -rnE '#include.*"(orbhost|orbtrace|orbhost_p|windowstack)' plugin --include='*.cpp' --include='*.h' |
    complain "the plug-in looks behind the framework's interface"
grep -rnE '#include.*(canbus_|raiseadapter|core/|volkswagen/|xinhang/)' platform workbench --include='*.cpp' --include='*.h' |
    complain "platform or workbench knows an adapter"

# Key codes have names, pinned in one header.
grep -rnE '0x0?1[01]0[0-9A-Fa-f]{4}\b' plugin --include='*.cpp' --include='*.h' | grep -v 'core/carkeys.h' |
    grep -vE '0x0?1000000\b' |
    complain "key code as a number"

# Every quirk has a test that fails when somebody mends it, and the other way round.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
grep -rhoE 'QUIRK [a-z0-9-]+' plugin platform | sed 's/QUIRK //; s/-/_/g' | sort -u >"$work/tagged"
grep -rhoE 'quirk_[a-z0-9_]+' tests | sed 's/quirk_//' | sort -u >"$work/tested"
comm -23 "$work/tagged" "$work/tested" | complain "quirks without a test"
comm -13 "$work/tagged" "$work/tested" | complain "tests of quirks that are not tagged"

exit $failed
