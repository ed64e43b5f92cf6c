#!/bin/sh
# SPDX-License-Identifier: MIT
# Compiles every header by itself: each includes what it uses. CXX names the compiler (g++).
set -eu
cd "$(dirname "$0")/.."

# The headers of the windows take Qt.
flags="-std=c++20 -fsyntax-only -fPIC -x c++ -Isrc -Itests $(pkg-config --cflags sqlcipher gumbo)"
windows=$(pkg-config --cflags Qt6WebEngineWidgets Qt6Test)

# check FLAGS: compiles the headers whose names come in, as many at once as there are processors.
check() {
    # shellcheck disable=SC2086 # a list of words
    xargs -P "$(nproc)" -I '{}' "${CXX:-g++}" $1 -include '{}' /dev/null
}

find src tests -name '*.h' -not -path '*/desktop/*' | check "$flags"
find src tests -name '*.h' -path '*/desktop/*' | check "$flags $windows"
