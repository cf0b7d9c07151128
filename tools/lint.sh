#!/bin/sh
# Layout and clang-tidy, in the tree's own settings (.clang-format, .clang-tidy).
#
#     tools/lint.sh           layout of everything; every check for what changed since everything passed
#     tools/lint.sh --all     every check for everything (some twenty minutes on two cores); when all is committed and
#                             passes, the commit is kept in tools/linted: commit that file, too
#     tools/lint.sh FILES     every check for these
#
# CANBUS_LINT_BASE names another commit than tools/linted to compare with. A changed header is looked at where the source
# file of its name includes it.
set -eu
. "$(dirname "$0")/setup.sh"
cd "$root"

sources() { git ls-files -co --exclude-standard -- '*.cpp' | sort; }

# Sources and headers that differ from the base, as source files.
changed() {
    {
        git diff --name-only --diff-filter=d "$base" -- '*.cpp' '*.h'
        git ls-files -o --exclude-standard -- '*.cpp' '*.h'
    } | sed 's/\.h$/.cpp/' | sort -u | while read -r file; do [ ! -f "$file" ] || echo "$file"; done
}

# Some sources are part of several programs; one of them is enough to look at.
compile_each_once() {
    mkdir -p "$build/once"
    python3 - "$build/compile_commands.json" >"$build/once/compile_commands.json" <<'END'
import json, sys
with open(sys.argv[1]) as commands:
    print(json.dumps(list({command["file"]: command for command in json.load(commands)}.values())))
END
}

# The source files named on standard input. The warnings of the compile commands count, as clang sees them; that a gcc
# option is not known to clang does not.
tidy() {
    xargs -r -n 4 -P "$(nproc)" clang-tidy -p "$build/once" --quiet --extra-arg=-Wno-unknown-warning-option \
        --header-filter="^$root/(plugin|platform|workbench|tests|benchmarks|fuzz)/" \
        >"$findings" 2>"$findings.errors" && return
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
compile_each_once

case ${1:-} in
'')
    base=${CANBUS_LINT_BASE:-$(cat tools/linted)}
    git cat-file -e "$base^{commit}" 2>/dev/null || fail "the commit $base to compare with is not here"
    changed >"$findings.files"
    step "Every check for $(wc -l <"$findings.files") changed files"
    tidy <"$findings.files"
    ;;
--all)
    step "Every check for $(sources | wc -l) files"
    sources | tidy
    if [ ! -e "$findings.failed" ] && [ -z "$(git status --porcelain)" ]; then
        git rev-parse HEAD >tools/linted
    fi
    ;;
*)
    step "Every check for $# files"
    printf '%s\n' "$@" | tidy
    ;;
esac
[ ! -e "$findings.failed" ] || fail "the findings above"
