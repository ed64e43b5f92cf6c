#!/bin/sh
# SPDX-License-Identifier: MIT
# Static analysis of src/: cppcheck, then clang-tidy with the checks of .clang-tidy. Fails at the first finding.
#   .ci/analysis.sh                 all of src/ that the build folder compiles
#   .ci/analysis.sh --cppcheck      cppcheck alone, which takes a minute
#   .ci/analysis.sh FILE.cpp ...    clang-tidy on these files alone
# BUILD names the build folder with the compile commands (build/dev, made without windows when it is not there).
set -eu
cd "$(dirname "$0")/.."
. .ci/packages.sh
install_missing cppcheck clang-tidy

build=${BUILD:-build/dev}

run_cppcheck() {
    # It reads no headers of libraries. What is told to be silent:
    # - useStlAlgorithm: a plain loop is often the clearer text;
    # - shadowFunction: a local variable may be called like a routine that nobody calls there;
    # - internalAstError in binder.cpp: it does not parse the generic lambda.
    cppcheck --std=c++20 --language=c++ --enable=warning,style,performance,portability --inline-suppr \
        --error-exitcode=1 --quiet -j "$(nproc)" -I src \
        --suppress=missingIncludeSystem --suppress=useStlAlgorithm --suppress=shadowFunction \
        --suppress=internalAstError:src/desktop/binder.cpp \
        --template='{file}:{line}: {severity}: {message} [{id}]' src
}

run_clang_tidy() {
    tidy=$(command -v clang-tidy || command -v clang-tidy-14)
    [ -f "$build/compile_commands.json" ] || cmake --preset dev -B "$build" -DTARNWICK_DESKTOP=OFF
    if [ $# = 0 ]; then
        # shellcheck disable=SC2046 # a list of names
        set -- $(grep -o '"file": "[^"]*/src/[^"]*\.cpp"' "$build/compile_commands.json" | cut -d'"' -f4 |
            grep -v autogen | sort -u)
    fi
    printf '%s\n' "$@" | xargs -P "$(nproc)" -n 1 "$tidy" -p "$build" --quiet
}

case "${1:-}" in
--cppcheck) run_cppcheck ;;
"")
    run_cppcheck
    run_clang_tidy
    ;;
*) run_clang_tidy "$@" ;;
esac
