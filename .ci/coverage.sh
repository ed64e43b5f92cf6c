#!/bin/sh
# SPDX-License-Identifier: MIT
# Measures which lines of the core its tests reach, and fails below the least share.
#   .ci/coverage.sh             builds build/coverage, runs the tests without windows, prints the figures
# Further arguments are handed to cmake's configuration (-DTARNWICK_SANITIZE=ON joins it with the sanitizers).
set -eu
cd "$(dirname "$0")/.."
. .ci/packages.sh
install_missing gcovr

least=90
folder=build/coverage
cmake --preset dev -B "$folder" -DTARNWICK_DESKTOP=OFF -DTARNWICK_TESTS=ON \
    -DCMAKE_CXX_FLAGS=--coverage -DCMAKE_CXX_FLAGS_DEBUG=-g1 "$@"
cmake --build "$folder" -j "$(nproc)"
find "$folder" -name '*.gcda' -delete
ctest --test-dir "$folder" -j "$(nproc)" --output-on-failure

# The window program has tests of its own; cli/main.cpp does nothing but call the commands.
gcovr --root . --object-directory "$folder" --filter 'src/' --exclude 'src/desktop/' --exclude 'src/cli/main.cpp' \
    --exclude-unreachable-branches --exclude-throw-branches -j "$(nproc)" \
    --sort-percentage --print-summary --fail-under-line "$least"
