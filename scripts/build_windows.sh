#!/usr/bin/env bash
# Builds all that is published for Windows, on Debian 12: build/windows/quazo.scr with its data set
# beside it, and from these a setup program, a portable archive, and the sources, which the licence
# of a library that is linked wants to be offered beside them.
#
#     scripts/build_windows.sh [--sdl-image FILE]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/checkout.sh
source scripts/packages.sh

check_checkout
require_packages $build_packages $windows_packages
scripts/windows_libraries.sh "$@"
[ -f build/release/CMakeCache.txt ] || # its settings stay as they are
    cmake --preset release -DBUILD_TESTING=OFF -DQUAZO_BENCH=OFF >/dev/null
cmake --build --preset release --target make_caustics
cmake --preset windows >/dev/null
cmake --build --preset windows

version=$(sed -n 's/^project(quazo VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
build=$PWD/build/windows
libraries=$PWD/build/windows-libraries
contents=$build/contents
rm -rf "$contents" "$build"/quazo-*
mkdir -p "$contents/licences"

# with_crlf FILE: on standard output, as every editor of Windows reads it.
with_crlf()
{
    sed 's/\r*$/\r/' "$1"
}

cp "$build/quazo.scr" "$contents"
cp -r "$build/###quazo!_data###" "$contents"
with_crlf packaging/windows/README.txt >"$contents/README.txt"
with_crlf LICENSE >"$contents/licences/quazo.txt"
for licence in "$libraries"/licences/*.txt; do
    with_crlf "$licence" >"$contents/licences/${licence##*/}"
done

makensis -V2 -DVERSION="$version" -DCONTENTS="$contents" -DOUTPUT="$build/quazo-$version-setup.exe" \
    packaging/windows/setup.nsi
(cd "$contents" && zip -qr "$build/quazo-$version-portable.zip" .)
if git ls-files --error-unmatch README.md >/dev/null 2>&1; then # nothing that only lies beside them
    git ls-files | zip -q "$build/quazo-$version-sources.zip" -@
else
    zip -qr "$build/quazo-$version-sources.zip" . -x 'build/*' '*.tar.gz' '*/__pycache__/*'
fi
(cd "$libraries" && zip -qr "$build/quazo-$version-sources.zip" sources)
ls -l "$build/quazo.scr" "$build"/quazo-*
