#!/usr/bin/env bash
# Takes the pictures of docs/gallery.md from the saver itself, on a virtual display: six stills, each
# of a start of its own, and eight of one run through its colours. Takes three minutes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/checkout.sh
source scripts/packages.sh
source scripts/virtual_display.sh

check_checkout
require_packages $build_packages $run_packages $virtual_display_packages
cmake --preset release -DBUILD_TESTING=OFF -DQUAZO_BENCH=OFF >/dev/null
cmake --build --preset release --target quazo data_set
scratch=$(mktemp -d)
trap 'kill ${saver:-} ${server:-} 2>/dev/null || true; wait; rm -rf "$scratch"' EXIT

# end PROCESS
end()
{
    kill "$1"
    wait "$1"
}

# take PICTURE SECONDS: that many seconds from now.
take()
{
    sleep "$2"
    kill -0 "$saver" 2>/dev/null || stop "the saver ended by itself"
    scrot --overwrite --quality 85 "docs/pictures/$1.jpg"
    echo "docs/pictures/$1.jpg"
}

start_saver()
{
    QUAZO_RENDER_SCALE=1 build/release/quazo /s >/dev/null & # every pixel
    saver=$!
}

start_display 960x540
still=0
for seconds in 6 12 18 24 30 36; do # the colours' period is 42
    start_saver
    take "still_$((++still))" "$seconds"
    end "$saver"
done
end "$server"

start_display 320x180
start_saver
sleep 5
for phase in 1 2 3 4 5 6 7 8; do
    take "phase_$phase" 5.2
done
