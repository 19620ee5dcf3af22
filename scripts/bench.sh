#!/usr/bin/env bash
# Runs every benchmark of the release build, and prints one table of medians, then the ratios that
# count. An argument is the number of repetitions, at least 2; 5 without one.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/checkout.sh
source scripts/packages.sh

check_checkout
require_packages $build_packages $run_packages $test_packages
cmake --preset release -DBUILD_TESTING=ON -DQUAZO_BENCH=ON >/dev/null
cmake --build --preset release >/dev/null
results="$PWD/build/bench" # the saver changes its directory
mkdir -p "$results"
for bench in surface sending swap saver; do
    "build/release/bench/${bench}_bench" --benchmark_repetitions="${1:-5}" \
        --benchmark_enable_random_interleaving=true \
        --benchmark_report_aggregates_only=true --benchmark_out_format=json \
        --benchmark_out="$results/$bench.json" >/dev/null 2>"$results/$bench.log" ||
        stop "${bench}_bench failed: see $results/$bench.log"
done
scripts/bench_table.py "$results"/{surface,sending,swap,saver}.json
