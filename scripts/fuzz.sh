#!/usr/bin/env bash
# Runs every fuzzer, or the one NAME, for SECONDS: scripts/fuzz.sh [SECONDS [NAME]]. Needs clang with
# its libFuzzer. Inputs that reach new code are kept in build/fuzz/corpus. One that fails is named, and
# build/fuzz/fuzz/NAME_fuzz FILE tries it again.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/checkout.sh
source scripts/packages.sh
seconds=${1:-10}
name=${2:-}
build=$PWD/build/fuzz # absolute, because some fuzzers change their directory

check_checkout
require_packages $build_packages $fuzz_packages
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
# An image's header may announce gigabytes. Here such an allocation fails.
export ASAN_OPTIONS=allocator_may_return_null=1:max_allocation_size_mb=300

# fuzz NAME
fuzz()
{
    local folders=("$build/corpus/$1")
    mkdir -p "${folders[0]}"
    [ ! -d "fuzz/seeds/$1" ] || folders+=("$PWD/fuzz/seeds/$1")
    echo "== $1, $seconds s"
    "$build/fuzz/$1_fuzz" -max_total_time="$seconds" -max_len=4096 -timeout=5 -rss_limit_mb=1024 \
        -malloc_limit_mb=65536 -dict="$PWD/fuzz/words.dict" -artifact_prefix="$build/" \
        -print_final_stats=1 "${folders[@]}" >"$build/$1.log" 2>&1 || {
        grep -E "ERROR|SUMMARY|Test unit" "$build/$1.log"
        return 1
    }
    grep "number_of_executed_units" "$build/$1.log"
}

trap 'exit 130' INT TERM HUP # a fuzzer that is interrupted ends with a status like any other
failed=0
for program in "$build"/fuzz/${name:-*}_fuzz; do
    [ -x "$program" ] || stop "no fuzzer $name"
    fuzz "$(basename "$program" _fuzz)" || failed=1
done
exit "$failed"
