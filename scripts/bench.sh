#!/usr/bin/env bash
# scripts/bench.sh [REPETITIONS]: runs every benchmark of the release build, and prints one table of
# medians, then the ratios that count, then the pace at the sizes of screens. At least 2 repetitions; 5
# without a number.
# scripts/bench.sh --against REVISION [FILTER [ROUNDS]]: builds another revision in a work tree of its
# own, runs the benchmarks that FILTER (a regular expression) matches in both, turn by turn, 15 rounds
# without a number, and prints how their times compare.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/checkout.sh
source scripts/packages.sh
programs="surface sending swap saver"
results="$PWD/build/bench" # absolute: the saver changes its directory
other="$PWD/build/against" # the other revision's work tree

# build_benchmarks SOURCE: the release build of the checkout SOURCE, with all that benchmarks need.
build_benchmarks()
{
    (cd "$1" && cmake --preset release -DBUILD_TESTING=ON -DQUAZO_BENCH=ON &&
        cmake --build --preset release --target bench/all) >"$results/build.log" 2>&1
}

# run_benchmarks SOURCE NAME RESULT ARGUMENT...: the program NAME_bench; RESULT.json is what it writes.
run_benchmarks()
{
    local checkout=$1 name=$2 result=$3
    shift 3
    "$checkout/build/release/bench/${name}_bench" "$@" --benchmark_out_format=json \
        --benchmark_out="$result.json" >"$result.log" 2>&1 ||
        stop "${name}_bench of $checkout failed: see $result.log"
}

remove_other()
{
    git worktree remove --force "$other" 2>/dev/null || rm -rf "$other"
    git worktree prune
}

# The side that goes first changes from round to round, so that neither always has the warmer machine.
compare_with()
{
    local revision=$1 filter=$2 rounds=$3 round name side sides=(here there)
    git rev-parse --quiet --verify "$revision^{commit}" >/dev/null || stop "no revision $revision"
    trap remove_other EXIT
    trap 'exit 130' INT TERM HUP
    remove_other
    git worktree add --quiet --detach "$other" "$revision"
    build_benchmarks "$other" || stop "$revision has no benchmarks that build: see $results/build.log"
    rm -rf "$results/here" "$results/there"
    mkdir -p "$results/here" "$results/there"
    local -A checkouts=([here]=$PWD [there]=$other)
    for ((round = 1; round <= rounds; ++round)); do
        for name in $programs; do
            for side in "${sides[@]}"; do
                [ ! -x "${checkouts[$side]}/build/release/bench/${name}_bench" ] ||
                    run_benchmarks "${checkouts[$side]}" "$name" "$results/$side/$name.$round" \
                        --benchmark_filter="$filter"
            done
        done
        sides=("${sides[1]}" "${sides[0]}")
    done
    scripts/bench_ratios.py "$results/here" "$results/there" "$revision"
}

check_checkout
require_packages $build_packages $run_packages $test_packages
mkdir -p "$results"
build_benchmarks . || stop "the benchmarks do not build: see $results/build.log"
if [ "${1:-}" = --against ]; then
    [ $# -ge 2 ] || stop "--against what revision?"
    compare_with "$2" "${3:-.}" "${4:-15}"
    exit
fi
for name in $programs; do
    run_benchmarks . "$name" "$results/$name" --benchmark_repetitions="${1:-5}" \
        --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true
done
scripts/bench_table.py "$results"/{surface,sending,swap,saver}.json
echo
for screen in "640 360 120" "1280 720 120" "1920 1080 60" "3840 2160 20"; do
    for scale in 1 ""; do # every pixel, and as the saver chooses
        echo "$screen, scale ${scale:-chosen}:" \
            "$(QUAZO_RENDER_SCALE=$scale build/release/bench/pace_bench $screen | tail -n 1)"
    done
done
