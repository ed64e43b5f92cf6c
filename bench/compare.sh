#!/bin/bash
# SPDX-License-Identifier: MIT
# Times whole runs against the limit (cp -r of the finished tree on the same disk) and against hugo on the same number of
# pages and about the same bytes, and shows how time grows. Prints Markdown tables.
#
#   bench/compare.sh [RUN_BENCH]     the benchmark program, build/release/bench/run_bench by default
#
# Seconds are those of the processor (user and system), the least of three rounds: on a busy machine the clock on the wall
# tells little. WORK names the folder for trees and sites, by default a temporary one on the disk of /tmp; it is removed.
set -euo pipefail
cd "$(dirname "$0")/.."
bench=${1:-build/release/bench/run_bench}
rounds=${ROUNDS:-3}
work=$(mktemp -d "${WORK:-/tmp}/tarnwick-compare-XXXXXX")
made=0
trap 'rm -rf "$work"' EXIT
TIMEFORMAT='%R %U %S'

least() { sort -g | head -1; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.1f", a / b }'; }
# Processor seconds of a command.
processor() { { time "$@" > /dev/null 2>&1; } 2>&1 | awk '{ printf "%.3f\n", $2 + $3 }'; }

# run SIZES...: sets pages, bytes, run_time, resident; leaves the tree in $app
run() {
    local round line times=""
    # Every round into a folder of its own: a file system looks long for room where much has just been deleted.
    for round in $(seq "$rounds"); do
        app=$work/app$((++made))
        line=$("$bench" "$@" --keep "$app" --line yes)
        read -r pages bytes _ time resident <<< "$line"
        times+="$time"$'\n'
    done
    run_time=$(printf '%s' "$times" | least)
}

copy_time() {
    local round
    for round in $(seq "$rounds"); do
        processor cp -r "$app/Projects" "$app/copy$round"
    done | least
}

megabytes() { awk -v b="$1" 'BEGIN { printf "%.1f", b / 1e6 }'; }
per_page() { awk -v t="$1" -v n="$2" 'BEGIN { printf "%.3f", t * 1000 / n }'; }

echo "### Against cp -r of the finished tree"
echo
echo "| Run, report included | Pages | MB | Run, s | cp -r, s | Ratio | Resident, MB |"
echo "|---|---|---|---|---|---|---|"
against_copy() {
    local name=$1 copied
    shift
    run "$@"
    copied=$(copy_time)
    echo "| $name | $pages | $(megabytes "$bytes") | $run_time | $copied | $(ratio "$run_time" "$copied") | $resident |"
}
against_copy "100 keywords x 20 subkeywords, 50 boxes of 500 words" 100 20 50 500 0
against_copy "the same, 500 random pages" 100 20 50 500 500
against_copy "150 keywords x 20 subkeywords, 100 boxes of 500 words, 500 random pages" 150 20 100 500 500
echo

if command -v hugo > /dev/null; then
    echo "### Against hugo"
    echo
    echo "| Program | Pages | MB | Processor, s | ms a page |"
    echo "|---|---|---|---|---|"
    run 200 24 50 500 0
    echo "| this program, report included | $pages | $(megabytes "$bytes") | $run_time | $(per_page "$run_time" "$pages") |"
    python3 bench/hugo_site.py "$app/Projects" "$work/site"
    hugo_time=$(for round in $(seq "$rounds"); do
        processor hugo --source "$work/site" --destination "$work/public$round" --quiet
    done | least)
    built=$(find "$work/public1" -name '*.html' | wc -l)
    built_bytes=$(find "$work/public1" -name '*.html' -printf '%s\n' | awk '{ s += $1 } END { print s }')
    echo "| $(hugo version | awk '{ print $1, $2 }' | cut -d- -f1) | $built | $(megabytes "$built_bytes") | $hugo_time" \
        "| $(per_page "$hugo_time" "$built") |"
    echo
fi

echo "### Growth, one size doubled at a time"
echo
echo "| Doubled | Keywords x subkeywords | Boxes x words | Random pages | Pages | MB | Run, s | ms a page | s a GB |"
echo "|---|---|---|---|---|---|---|---|---|"
growth() {
    run "${@:2}"
    echo "| $1 | $2 x $3 | $4 x $5 | $6 | $pages | $(megabytes "$bytes") | $run_time | $(per_page "$run_time" "$pages")" \
        "| $(awk -v t="$run_time" -v b="$bytes" 'BEGIN { printf "%.1f", t * 1e9 / b }') |"
}
for n in 10 20 40; do growth "second-level pages" 50 $n 20 300 0; done
for n in 200 400 800; do growth "random pages" 20 2 20 300 $n; done
for n in 50 100 200; do growth "keywords, pages about the same" $n $((2000 / n)) 20 300 0; done
for n in 20 40 80; do growth "boxes" 50 10 $n 300 100; done
for n in 250 500 1000; do growth "text length" 50 10 20 $n 100; done
