#!/usr/bin/env bash
# fuzz.sh BUILD NAME SECONDS: runs the fuzz target for that time. It starts from the seeds of BUILD/fuzz/seeds/NAME and
# from what earlier runs found; what it finds stays in BUILD/corpus/NAME, and what breaks it in BUILD/findings.
set -euo pipefail

build=$1 name=$2 seconds=$3
corpus=$build/corpus/$name seeds=$build/fuzz/seeds/$name findings=$build/findings log=$build/fuzz_$name.log
mkdir -p "$corpus" "$seeds" "$findings"
folders=("$corpus" "$seeds")
# Source code starts from code that stands here anyway.
if [[ $name == source ]]; then folders+=(tests/checks examples/kunden-verstellt); fi

printf 'fuzz_%s for %s s, %s seeds\n' "$name" "$seconds" "$(find "${folders[@]:1}" -type f | wc -l)" >&2
status=0
"$build/fuzz/fuzz_$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=4096 -print_final_stats=1 \
    -artifact_prefix="$findings/$name-" "${folders[@]}" >"$log" 2>&1 || status=$?
if ((status != 0)); then
    grep -nE 'ERROR|SUMMARY|Test unit written' "$log" || tail -n 30 "$log"
    echo "fuzz_$name found something: all of it stands in $log" >&2
    exit "$status"
fi
grep -E '^stat::|^Done' "$log"
