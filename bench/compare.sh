#!/bin/bash
# SPDX-License-Identifier: MIT
# Times whole runs, report included, against cp -r of the finished tree and against hugo on the same number of pages and
# about the same bytes, in the windows against without, and shows how time grows. Prints Markdown tables.
#
#   bench/compare.sh [RUN_BENCH]     the benchmark program, build/release/bench/run_bench by default
#
# Seconds are those of the processor, user and system: on a busy machine the clock on the wall tells little. Both sides
# take turns, ROUNDS times (5); told are the least and, in brackets, the median. For root every project gets a new ext4
# of its own, in a file below WORK (/tmp): on one where much has just been deleted each new file costs many times as
# much. Without root it is the file system of WORK as it stands.
set -euo pipefail
cd "$(dirname "$0")/.."
bench=${1:-build/release/bench/run_bench}
bench=$(readlink -f "$bench")
rounds=${ROUNDS:-5}
work=$(mktemp -d "${WORK:-/tmp}/tarnwick-compare-XXXXXX")
place=$work/disk
TIMEFORMAT='%R %U %S'

leave() {
    if mountpoint -q "$place"; then umount "$place"; fi
    rm -rf "$work"
}
trap leave EXIT

# A place to write to where nothing has been deleted yet.
new_place() {
    if mountpoint -q "$place"; then umount "$place"; fi
    rm -rf "$place"
    mkdir "$place"
    if [ "$(id -u)" = 0 ]; then
        rm -f "$work/image"
        truncate -s 20G "$work/image"
        mkfs.ext4 -q -F -E lazy_itable_init=0 -N 200000 "$work/image"
        mount -o loop "$work/image" "$place"
    fi
}

least() { sort -g | head -n 1; }
median() { sort -g | awk '{ a[NR] = $1 } END { print NR % 2 ? a[(NR + 1) / 2] : (a[NR / 2] + a[NR / 2 + 1]) / 2 }'; }
both() { printf '%.2f (%.2f)' "$(least <<< "$1")" "$(median <<< "$1")"; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.1f", a / b }'; }
megabytes() { awk -v b="$1" 'BEGIN { printf "%.1f", b / 1e6 }'; }
kilobytes() { awk -v b="$1" -v n="$2" 'BEGIN { printf "%.1f", b / 1e3 / n }'; }
per_page() { awk -v t="$1" -v n="$2" 'BEGIN { printf "%.2f", t * 1000 / n }'; }
# Processor seconds of a command.
processor() { { time "$@" > /dev/null 2>&1; } 2>&1 | awk '{ printf "%.3f\n", $2 + $3 }'; }
lines() { if [ -n "$1" ]; then printf '%s\n%s' "$1" "$2"; else printf '%s' "$2"; fi; }

# run SIZES...: one run into a folder of its own; sets pages, bytes, wall, time, kernel, resident and app
made=0
run() {
    app=$place/app$((++made))
    read -r pages bytes wall time kernel resident <<< "$("$bench" "$@" --keep "$app" --line yes)"
}
# least_run SIZES...: as `run`, the least of all rounds
least_run() {
    new_place
    local times=""
    for _ in $(seq "$rounds"); do
        run "$@"
        times=$(lines "$times" "$time")
    done
    time=$(least <<< "$times")
}

new_place
echo "$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1), $(nproc) of them; $(uname -sr);" \
    "$(findmnt -n -o FSTYPE -T "$place")$([ "$(id -u)" = 0 ] && echo ", made for each project");" \
    "commit $(git rev-parse --short HEAD)$([ -z "$(git status --porcelain -uno)" ] || echo ", changed since");" \
    "$rounds rounds."
echo
echo "### Against cp -r of the finished tree"
echo
echo "| Project | Pages | MB | KB a page | Run, s | in the kernel | ms a page | cp -r, s | Ratio | Resident, MB |"
echo "|---|---|---|---|---|---|---|---|---|---|"
against_copy() {
    local name=$1 times="" kernels="" copies=""
    shift
    new_place
    for _ in $(seq "$rounds"); do
        run "$@"
        times=$(lines "$times" "$time")
        kernels=$(lines "$kernels" "$kernel")
        copies=$(lines "$copies" "$(processor cp -r "$app/Projects" "$app/copy")")
    done
    time=$(least <<< "$times")
    echo "| $name | $pages | $(megabytes "$bytes") | $(kilobytes "$bytes" "$pages") | $(both "$times") | $(both "$kernels")" \
        "| $(per_page "$time" "$pages") | $(both "$copies") | $(ratio "$time" "$(least <<< "$copies")") | $resident |"
}
against_copy "100 keywords x 20 subkeywords, 50 boxes of 500 words" 100 20 50 500 0
against_copy "the same, 500 random pages" 100 20 50 500 500
against_copy "250 x 19, 50 boxes" 250 19 50 500 0
against_copy "150 x 20, 100 boxes, 500 random pages" 150 20 100 500 500
large() { against_copy "$1" 150 20 100 500 500 "${@:2}"; }
large "every 500th word a keyword" --every 500
large "every 50th" --every 50
large "every 10th" --every 10
large "every 50th, keywords of one word" --every 50 --keywords words
large "every 50th, keywords that begin alike" --every 50 --keywords shared
large "every 50th, 40 different words" --every 50 --vocabulary 40
large "every 50th, 3,000 different words" --every 50 --vocabulary 3000
large "every 50th, a tag behind every 20th" --every 50 --tags 20
echo

if command -v hugo > /dev/null; then
    echo "### Against hugo"
    echo
    echo "| Program | Pages | MB | Processor, s | ms a page |"
    echo "|---|---|---|---|---|"
    least_run 200 24 50 500 0
    echo "| this program, report included | $pages | $(megabytes "$bytes") | $time | $(per_page "$time" "$pages") |"
    python3 bench/hugo_site.py "$app/Projects" "$place/site"
    hugo_time=$(for round in $(seq "$rounds"); do
        processor hugo --source "$place/site" --destination "$place/public$round" --quiet
    done | least)
    built=$(find "$place/public1" -name '*.html' | wc -l)
    built_bytes=$(find "$place/public1" -name '*.html' -printf '%s\n' | awk '{ s += $1 } END { print s }')
    echo "| $(hugo version | awk '{ print $1, $2 }' | cut -d- -f1) | $built | $(megabytes "$built_bytes") | $hugo_time" \
        "| $(per_page "$hugo_time" "$built") |"
    echo
fi

if QT_QPA_PLATFORM=offscreen "$bench" 3 1 3 100 0 --window yes > /dev/null 2>&1; then
    echo "### In the windows, seconds on the wall"
    echo
    echo "| Pages | Without | In the windows |"
    echo "|---|---|---|"
    new_place
    walls="" windows=""
    for _ in $(seq "$rounds"); do
        run 200 24 50 500 0
        walls=$(lines "$walls" "$wall")
        QT_QPA_PLATFORM=offscreen run 200 24 50 500 0 --window yes
        windows=$(lines "$windows" "$wall")
    done
    echo "| $pages | $(both "$walls") | $(both "$windows") |"
    echo
fi

echo "### Growth, one size doubled at a time"
echo
echo "| Doubled | Keywords x subkeywords | Boxes x words | Random pages | Pages | MB | Run, s | ms a page | s a GB |"
echo "|---|---|---|---|---|---|---|---|---|"
growth() {
    least_run "${@:2}"
    echo "| $1 | $2 x $3 | $4 x $5 | $6 | $pages | $(megabytes "$bytes") | $time | $(per_page "$time" "$pages")" \
        "| $(awk -v t="$time" -v b="$bytes" 'BEGIN { printf "%.1f", t * 1e9 / b }') |"
}
for n in 10 20 40; do growth "second-level pages" 50 $n 20 300 0; done
for n in 200 400 800; do growth "random pages" 20 2 20 300 $n; done
for n in 50 100 200; do growth "keywords, pages about the same" $n $((2000 / n)) 20 300 0; done
for n in 20 40 80; do growth "boxes" 50 10 $n 300 100; done
for n in 250 500 1000; do growth "text length" 50 10 20 $n 100; done
