#!/usr/bin/env bash
# Everything that is checked before a change counts as done; the continuous integration runs this.
# With --quick only what takes seconds once the release is built: layers, format, and the tests that
# need no display. With --windows the build for Windows is tried too, under wine. A step that fails
# does not stop those that do not need it.
set -uo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")" || exit
source scripts/checkout.sh
source scripts/packages.sh

case "${1:-}" in
"" | --quick | --windows) ;;
*) stop "usage: ./test.sh [--quick | --windows]" ;;
esac
check_checkout

declare -A results=() # of the steps so far: passed, failed, skipped, or left out (not to be had here)
table=""

# step NAME NEEDED COMMAND...: runs the command, unless the step NEEDED, "" for none, has not passed.
step()
{
    local name=$1 needed=$2 begin=$SECONDS
    shift 2
    printf '\n== %s\n' "$name"
    if [ -n "$needed" ] && [ "${results[$needed]}" != passed ]; then
        results[$name]=skipped
        echo "skipped: it needs \"$needed\""
    else
        # In a shell of its own, and not as a condition, so that the first command to fail ends it.
        (set -e; "$@")
        case $? in
        0) results[$name]=passed ;;
        77) results[$name]="left out" ;;
        *) results[$name]=failed ;;
        esac
    fi
    table+=$(printf '%-18s %-8s %5d s' "$name" "${results[$name]}" $((SECONDS - begin)))$'\n'
}

check_layers()
{
    scripts/check_layers.py
}

check_documents()
{
    scripts/check_documents.py
    mandoc -T lint -W warning packaging/*.6.in
}

# Each version formats a little differently: only Debian 12's decides.
check_format()
{
    local version
    version=$(clang-format --version)
    case "$version" in
    *"version 14."*) ;;
    *)
        echo "not judged: clang-format 14 decides, and this is $version"
        return
        ;;
    esac
    find app bench fuzz platform surface tests tools zrk -name "*.h" -o -name "*.cpp" |
        xargs clang-format --dry-run --Werror
}

# build PRESET
build()
{
    cmake --preset "$1" -DQUAZO_BENCH=ON >/dev/null
    cmake --build --preset "$1"
}

# run_tests PRESET OPTION...
run_tests()
{
    ctest --preset "$1" --no-tests=error -j 2 "${@:2}"
}

build_package()
{
    local log=build/package.log
    cpack --config build/release/CPackConfig.cmake -B build/package >"$log" 2>&1 ||
        { cat "$log"; return 1; }
    # Newer ones ask AppStream, which misses a homepage, and there is none.
    local homepage=appstream-metadata-validation-failed suppressed=()
    ! lintian-explain-tags "$homepage" >/dev/null 2>&1 || suppressed=(--suppress-tags "$homepage")
    lintian --allow-root --display-info --pedantic --fail-on error,warning,info,pedantic \
        "${suppressed[@]}" build/package/*.deb
}

run_clang_tidy()
{
    local log=build/clang-tidy.log
    run-clang-tidy -quiet -p build/release -j "$(nproc)" >"$log" 2>&1 ||
        { grep -E '(error|warning):' "$log"; return 1; }
}

step "packages" "" require_packages $build_packages $run_packages $test_packages $fuzz_packages
step "layers" "" check_layers
step "format" "" check_format
step "documents" "packages" check_documents
step "release build" "packages" build release
if [ "${1:-}" = --quick ]; then
    step "release tests" "release build" run_tests release -LE display
else
    step "release tests" "release build" run_tests release
    step "sanitizer build" "packages" build sanitize
    step "sanitizer tests" "sanitizer build" run_tests sanitize
    step "fuzzers" "packages" scripts/fuzz.sh 3
    step "hosts" "release build" scripts/try_hosts.sh
    step "package" "release build" build_package
    step "clang-tidy" "release build" run_clang_tidy
    step "README" "packages" scripts/try_readme.sh
    [ "${1:-}" != --windows ] || step "windows" "release build" scripts/try_windows.sh
fi

printf '\n%s' "$table"
case "$table" in
*" failed "* | *" skipped "*) exit 1 ;;
esac
