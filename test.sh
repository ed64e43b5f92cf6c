#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds everything and runs every test, those of the windows off screen.
#   ./test.sh                 a debug build
#   ./test.sh --sanitize      with the address and undefined behaviour sanitizers
# Further arguments are handed to cmake's configuration.
set -eu
cd "$(dirname "$0")"
. .ci/packages.sh

preset=dev
if [ "${1:-}" = --sanitize ]; then
    preset=asan
    shift
fi

# shellcheck disable=SC2086 # a list of words
install_missing $build_packages $test_packages
cmake --preset "$preset" -DTARNWICK_TESTS=ON "$@"
cmake --build "build/$preset" -j "$(nproc)"

export UBSAN_OPTIONS="print_stacktrace=1:${UBSAN_OPTIONS:-}"
ctest --preset "$preset" -j "$(nproc)"
