#!/usr/bin/env bash
# lint.sh BUILD [FILE...]: clang-tidy over FILEs, or over all of src/, as BUILD compiles them. The compiler is g++, so
# the compile commands hold flags that clang does not know, and its own further warnings are not asked for.
# The path-sensitive analyser takes two thirds of the time and runs with ZENTLOR_LINT_DEEP=1 only.
set -euo pipefail

build=$1
shift
if (($# == 0)); then set -- "$PWD/src/"; fi
checks='-clang-analyzer-*'
if [[ ${ZENTLOR_LINT_DEEP-} == 1 ]]; then checks=; fi

run-clang-tidy-14 -quiet -p "$build" -j "$(nproc)" -clang-tidy-binary clang-tidy-14 -checks="$checks" \
    -extra-arg=-Wno-unknown-warning-option -extra-arg=-Wno-error "$@"
