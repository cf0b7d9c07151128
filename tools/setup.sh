# shellcheck shell=sh
# Sourced by run.sh, test.sh and tools/lint.sh: installs what is missing, configures, builds.
#
# CANBUS_BUILD names the build folder (default: build). Says what it does, one line a step.

root=$(cd "$(dirname "$0")" && pwd)
root=${root%/tools}
build=${CANBUS_BUILD:-$root/build}

step() { printf '== %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# Debian packages that are not there yet are installed through apt.
need_packages() {
    missing=
    for package in "$@"; do
        case $(dpkg-query -W -f '${Status}' "$package" 2>/dev/null) in
        *' installed') ;;
        *) missing="$missing $package" ;;
        esac
    done
    [ -n "$missing" ] || return 0
    step "Installing$missing"
    as_root=
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || fail "please install as root:$missing"
        as_root=sudo
    fi
    log=$(mktemp)
    # shellcheck disable=SC2086
    if ! { $as_root apt-get update &&
        $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $missing; } >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        rm -f "$log"
        fail "apt could not install:$missing"
    fi
    rm -f "$log"
}

# configure CMAKE_OPTIONS...
configure() {
    need_packages g++ cmake ninja-build python3 qtbase5-dev qttools5-dev qttools5-dev-tools \
        libcli11-dev pkg-config fontconfig fonts-dejavu-core fonts-wqy-microhei
    step "Configuring in ${build#"$root"/}"
    log=$(mktemp)
    # There are more than a hundred programs, and gold links them in a quarter of the time.
    if ! cmake -S "$root" -B "$build" -G Ninja -DCANBUS_PRECOMPILE=ON -DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold "$@" \
        >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        fail "configuring failed"
    fi
    rm -f "$log"
}

# The tests and what fuzzes, under the address, leak and undefined-behaviour sanitizers: one build for both. clang takes as
# long for it optimised as g++ for one that is not. Qt's assertions stay. gold does not know what the sanitizers' libraries
# ask of a linker.
configure_sanitized() {
    need_packages clang llvm
    build=${CANBUS_BUILD:-$root/build}-sanitize
    configure -DCANBUS_TESTS=ON -DCANBUS_SANITIZE=ON -DCANBUS_FUZZ=ON -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_EXE_LINKER_FLAGS= \
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG='-O2 -g1'
}

# build_targets TARGETS...
build_targets() {
    step "Building (a few minutes the first time)"
    cmake --build "$build" --target "$@" || fail "building failed"
}
