#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds Tarnwick, fills the folder Tarnwick/ beside the sources, and opens the wizard. Where there is no display it
# generates the pages of the sample project instead. Projects, stores and settings that stand in the folder stay.
set -eu
cd "$(dirname "$0")"
. .ci/packages.sh

# shellcheck disable=SC2086 # a list of words
install_missing $build_packages
cmake --preset release -DTARNWICK_TESTS=OFF
cmake --build build/release --target deliver -j "$(nproc)"

[ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || exec Tarnwick/tarnwick
echo
echo "There is no display: generating the sample project."
Tarnwick/tarnwick-cli generate garden-sample
echo "The pages are in $PWD/Tarnwick/Projects/garden-sample"
