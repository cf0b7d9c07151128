#!/bin/sh
# Builds everything and runs every test. Arguments go to ctest (./test.sh -R framing).
set -eu
. "$(dirname "$0")/tools/setup.sh"

configure_and_build all -- -DCANBUS_TESTS=ON
step "Running the tests"
cd "$build"
exec ctest --output-on-failure --no-tests=error -j "$(nproc)" "$@"
