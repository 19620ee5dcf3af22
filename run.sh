#!/usr/bin/env bash
# Builds the saver and runs it: on the display, or, without one, for a few seconds on a virtual
# display of its own, leaving a picture.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")"
source scripts/checkout.sh
source scripts/packages.sh
source scripts/virtual_display.sh

check_checkout
require_packages $build_packages $run_packages
# Somebody who only wants to see the saver is not stopped by a newer compiler's warnings. A build
# folder that is there keeps its setting: changing it would compile everything anew.
if [ -f build/release/CMakeCache.txt ]; then
    configuration=(build/release)
else
    configuration=(--preset release -DCMAKE_COMPILE_WARNING_AS_ERROR=OFF)
fi
cmake "${configuration[@]}" -DBUILD_TESTING=OFF -DQUAZO_BENCH=OFF >/dev/null ||
    stop "cannot configure the build"
cmake --build --preset release || stop "cannot build"

if [ -n "${DISPLAY:-}" ]; then
    echo "Escape, a click or a good move of the mouse ends the saver."
    exec build/release/quazo /s
fi
scratch=$(mktemp -d)
trap 'kill ${saver:-} ${server:-} 2>/dev/null || true; wait; rm -rf "$scratch"' EXIT
require_packages $virtual_display_packages
picture=build/quazo.png
start_display 1280x720
build/release/quazo /s &
saver=$!
sleep 6
kill -0 "$saver" 2>/dev/null || stop "the saver ended by itself"
scrot --overwrite "$picture"
kill -TERM "$saver"
wait "$saver" || stop "the saver ended with status $?"
saver=
echo "No display here: the saver ran on a virtual one. Its picture: $PWD/$picture"
