# shellcheck shell=sh
# Sourced by run.sh and test.sh: installs what is missing, configures, builds.
#
# CANBUS_BUILD names the build folder (default: build). Says what it does, one line a step.

root=$(cd "$(dirname "$0")" && pwd)
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

# configure_and_build TARGETS... -- CMAKE_OPTIONS...
configure_and_build() {
    targets=
    while [ $# -gt 0 ] && [ "$1" != -- ]; do
        targets="$targets $1"
        shift
    done
    [ $# -eq 0 ] || shift
    need_packages g++ cmake ninja-build qtbase5-dev libqt5serialport5-dev qttools5-dev qttools5-dev-tools \
        libcli11-dev fontconfig fonts-dejavu-core fonts-wqy-microhei
    step "Configuring in ${build#"$root"/}"
    cmake -S "$root" -B "$build" -G Ninja "$@" >"${TMPDIR:-/tmp}/canbus-configure.$$" 2>&1 || {
        cat "${TMPDIR:-/tmp}/canbus-configure.$$" >&2
        rm -f "${TMPDIR:-/tmp}/canbus-configure.$$"
        fail "configuring failed"
    }
    rm -f "${TMPDIR:-/tmp}/canbus-configure.$$"
    step "Building (a few minutes the first time)"
    # shellcheck disable=SC2086
    cmake --build "$build" ${targets:+--target $targets} || fail "building failed"
}
