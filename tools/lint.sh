#!/bin/sh
# Layout and clang-tidy, in the tree's own settings (.clang-format, .clang-tidy).
#
#     tools/lint.sh           layout, names and braces of everything; every check for what changed since the last commit
#     tools/lint.sh --all     every check for everything (some fifteen minutes on two cores)
#     tools/lint.sh FILES     every check for these
#
# CANBUS_LINT_BASE names another commit than the last to compare with. A changed header is looked at where the source
# file of its name includes it.
set -eu
. "$(dirname "$0")/setup.sh"
cd "$root"
dialect='-*,readability-braces-around-statements,readability-identifier-naming'

sources() { git ls-files -co --exclude-standard -- '*.cpp' | sort; }

# Sources and headers that differ from the base, as source files.
changed() {
    {
        git diff --name-only --diff-filter=d "${CANBUS_LINT_BASE:-HEAD~1}" -- '*.cpp' '*.h'
        git ls-files -o --exclude-standard -- '*.cpp' '*.h'
    } | sed 's/\.h$/.cpp/' | sort -u | while read -r file; do [ ! -f "$file" ] || echo "$file"; done
}

# tidy CHECKS: the source files named on standard input, under CHECKS ("" for those of .clang-tidy). The warnings of
# the compile commands count, as clang sees them; that a gcc option is not known to clang does not.
tidy() {
    xargs -r -n 4 -P "$(nproc)" clang-tidy -p "$build" --quiet --extra-arg=-Wno-unknown-warning-option \
        --header-filter="^$root/(plugin|platform|workbench|tests|benchmarks|fuzz)/" \
        ${1:+--checks="$1"} >"$findings" 2>"$findings.errors" && return
    cat "$findings"
    grep -v ' warnings\{0,1\} generated\.$' "$findings.errors" || true
    touch "$findings.failed" # it stands at the end of pipes, in a shell of its own
}

need_packages clang clang-format clang-tidy git libbenchmark-dev
findings=$(mktemp)
trap 'rm -f "$findings" "$findings.errors" "$findings.files" "$findings.failed"' EXIT
trap 'exit 1' HUP INT TERM

step "Layout of everything"
git ls-files -co --exclude-standard -- '*.cpp' '*.h' | xargs clang-format --dry-run -Werror ||
    touch "$findings.failed"

# What moc and uic generate is included by the sources, and so is what is precompiled, in a folder of its own, since clang
# cannot read what gcc precompiled; nothing else needs to be built.
build=$build-lint
configure -DCANBUS_TESTS=ON -DCANBUS_BENCHMARKS=ON -DCMAKE_CXX_COMPILER=clang++
# shellcheck disable=SC2046
build_targets $(cmake --build "$build" --target help |
    sed -n 's/^\([^:/]*_autogen\): phony$/\1/p; s/^\(canbus_precompiled_[a-z]*\): phony$/\1/p')

case ${1:-} in
'')
    step "Names and braces of $(sources | wc -l) files"
    sources | tidy "$dialect"
    changed >"$findings.files"
    step "Every check for $(wc -l <"$findings.files") changed files"
    tidy '' <"$findings.files"
    ;;
--all)
    step "Every check for $(sources | wc -l) files"
    sources | tidy ''
    ;;
*)
    step "Every check for $# files"
    printf '%s\n' "$@" | tidy ''
    ;;
esac
[ ! -e "$findings.failed" ] || fail "the findings above"
