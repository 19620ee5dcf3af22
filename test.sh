#!/usr/bin/env bash
# Everything that is checked before a change counts as done; the continuous integration runs this.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source scripts/packages.sh

step()
{
    printf '\n== %s (at %d s)\n' "$1" "$SECONDS"
}

step "packages"
require_packages $build_packages $run_packages $test_packages

step "layers"
scripts/check_layers.py

step "format"
find app bench platform surface tests tools zrk -name "*.h" -o -name "*.cpp" |
    xargs clang-format --dry-run --Werror

for preset in release sanitize; do
    step "build: $preset"
    cmake --preset "$preset" -DBUILD_TESTING=ON -DQUAZO_BENCH=ON >/dev/null
    cmake --build --preset "$preset"
    step "tests: $preset"
    ctest --preset "$preset" --no-tests=error -j 2
done

step "hosts"
scripts/try_hosts.sh

step "package"
cpack --config build/release/CPackConfig.cmake -B build/package >build/package.log 2>&1 ||
    { cat build/package.log; stop "no package"; }
lintian --allow-root --fail-on error build/package/*.deb

step "clang-tidy"
run-clang-tidy -quiet -p build/release -j "$(nproc)" >build/clang-tidy.log 2>&1 ||
    { grep -E '(error|warning):' build/clang-tidy.log; stop "clang-tidy objects"; }

printf '\nAll green after %d s.\n' "$SECONDS"
