#!/usr/bin/env bash
# bench.sh BUILD: time and memory of `zentlor check` over generated projects of growing size, beside ripgrep, which
# counts 60 words of the language in the same files in the same run, both on one core and in turn.
# ZENTLOR_BENCH_RUNS sets how often each runs (5), ZENTLOR_BENCH_LINES the sizes.
set -euo pipefail

build=$1
readonly runs=${ZENTLOR_BENCH_RUNS-5} words=$PWD/bench/words.txt
read -r -a sizes <<<"${ZENTLOR_BENCH_LINES-100000 200000 400000}"
projects=$(mktemp -d)
trap 'rm -rf "$projects"' EXIT

# Bound of the memory: eight times the source and 20 MB. Growth: times the row above, for twice the lines.
printRow() {
    awk -v lines="$1" -v bytes="$2" -v ours="$3" -v ourPeak="$4" -v theirs="$5" -v theirPeak="$6" -v before="$7" 'BEGIN {
        growth = before > 0 ? sprintf("%.2f", ours / before) : "-"
        printf "%8d %10d %10.1f %10.1f %7.2f %10d %7s %8.1f %8.1f %8.1f\n", lines, bytes, ours, theirs, ours / theirs,
            lines / ours * 1000, growth, ourPeak / 1024, (8 * bytes + 20e6) / 1048576, theirPeak / 1024 }'
}

measureSize() {
    local folder=$projects/$1 lines bytes figures
    read -r lines bytes < <("$build/bench/make_project" "$1" "$folder")
    figures=$("$build/bench/measure" "$runs" "$build/src/cli/zentlor" check --format jsonl --isolated "$folder" -- \
        rg -j1 -c -w -f "$words" "$folder")
    # shellcheck disable=SC2086  # four figures, four words
    printRow "$lines" "$bytes" $figures "$before"
    before=${figures%% *}
}

stagesOf() {
    "$build/src/cli/zentlor" check --format jsonl --isolated --stage-times "$1" 2>&1 >/dev/null | grep '^stages:' || true
}

echo "medians of $runs runs each, in turn, on one core; load of the machine: $(cut -d' ' -f1-3 /proc/loadavg)"
printf '%8s %10s %10s %10s %7s %10s %7s %8s %8s %8s\n' lines bytes 'check ms' 'rg ms' ratio lines/s growth \
    'peak MiB' 'bound' 'rg MiB'
before=0
for size in "${sizes[@]}"; do measureSize "$size"; done
echo "hints in the largest project: $("$build/src/cli/zentlor" check --format jsonl --isolated "$projects/${sizes[-1]}" | wc -l)"
stagesOf "$projects/${sizes[-1]}"
