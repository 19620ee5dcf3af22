#!/usr/bin/env bash
# Draws FRAMES frames of the saver (10000 without an argument) as fast as they come, with changes of
# size on the way: prints memory and descriptors, and fails if they grow or OpenGL reports an error.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/checkout.sh
source scripts/packages.sh

check_checkout
require_packages $build_packages $run_packages $test_packages
cmake --preset release -DBUILD_TESTING=ON >/dev/null
cmake --build --preset release --target soak >/dev/null
exec build/release/tests/programs/soak "${1:-10000}"
