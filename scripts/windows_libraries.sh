#!/usr/bin/env bash
# Builds the libraries that the saver links on Windows into build/windows-libraries, static, with
# mingw: SDL 1.2 and libpng from Debian's source packages, SDL_image 1.2 from a source archive.
# Libraries that are there already are kept. Their sources and licences stay beside them.
#
#     scripts/windows_libraries.sh [--sdl-image FILE]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/checkout.sh
source scripts/packages.sh

image_archive=../shared/third_party/SDL_image-1.2.13.tar.gz
image_sum=121666d27428100f722383785760888d321b8d3e9733ed8ea9075d333efd4ffb
image_home=https://github.com/libsdl-org/SDL_image

case "${1:-}" in
"") ;;
--sdl-image) image_archive=${2:?"--sdl-image needs a file"} ;;
*) stop "usage: $0 [--sdl-image FILE]" ;;
esac

target=x86_64-w64-mingw32
compiler=$target-gcc-posix
prefix=$PWD/build/windows-libraries
made=$prefix/complete
if [ -f "$made" ]; then
    exit
fi

[ -f "$image_archive" ] || {
    echo "skipped: no $image_archive. Its public home is $image_home; name a copy with --sdl-image." >&2
    exit 77 # what cannot be tried is no failure
}
echo "$image_sum  $image_archive" | sha256sum --check --status ||
    stop "$image_archive is not the archive that is expected: its SHA-256 should be $image_sum"
image_archive=$(realpath "$image_archive")

check_checkout
require_packages $windows_packages
rm -rf "$prefix"
mkdir -p "$prefix/sources"
log=$prefix/build.log
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# The system's own sources of packages, as sources of source packages; its lists stay as they are.
private_apt()
{
    apt-get -o Dir::Etc::SourceList="$scratch/apt/sources.list" \
        -o Dir::Etc::SourceParts="$scratch/apt/sources.list.d" -o Dir::State="$scratch/apt/state" \
        -o Dir::Cache="$scratch/apt/cache" -o APT::Sandbox::User=root -q "$@"
}

# A mirror may lack the source of the newest update; then the release's own will do.
fetch_package()
{
    private_apt source --download-only --only-source "$1" || {
        rm -f "$1"_*
        private_apt source --download-only --only-source "$1/$(. /etc/os-release; echo "$VERSION_CODENAME")"
    }
}

fetch_sources()
{
    mkdir -p "$scratch"/apt/{sources.list.d,state/lists/partial,cache/archives/partial}
    cp /etc/apt/sources.list "$scratch/apt/" 2>/dev/null || true
    cp /etc/apt/sources.list.d/*.{list,sources} "$scratch/apt/sources.list.d/" 2>/dev/null || true
    find "$scratch/apt" -name '*.list' -exec sed -i '/^deb-src /d; s/^deb /deb-src /' {} +
    find "$scratch/apt" -name '*.sources' -exec sed -i 's/^Types:.*/Types: deb-src/' {} +
    private_apt update
    cp "$image_archive" "$prefix/sources"
    cd "$prefix/sources"
    fetch_package libsdl1.2
    fetch_package libpng1.6
    dpkg-source --no-check -x libsdl1.2_*.dsc "$scratch/sdl"
    dpkg-source --no-check -x libpng1.6_*.dsc "$scratch/png"
    mkdir "$scratch/image"
    tar -xf "$image_archive" -C "$scratch/image" --strip-components=1
}

# configure_and_make FOLDER OPTION...
configure_and_make()
{
    cd "$scratch/$1"
    ./configure --host="$target" --prefix="$prefix" --disable-shared --enable-static \
        CC="$compiler" CFLAGS="$flags" "${@:2}"
    make -j "$(nproc)" install
}

# Its archive has no complete build of its own. JPEG, TIFF and WebP would need a library each.
make_image()
{
    local format
    cd "$scratch/image"
    for format in BMP GIF LBM PCX PNG PNM TGA XCF XPM XV; do
        flags+=" -DLOAD_$format"
    done
    $compiler $flags -I"$prefix/include" -I"$prefix/include/SDL" -c IMG*.c
    $target-ar rcs "$prefix/lib/libSDL_image.a" IMG*.o
    cp SDL_image.h "$prefix/include/SDL"
}

keep_licences()
{
    mkdir "$prefix/licences"
    cd "$prefix/licences"
    cp "$scratch/sdl/COPYING" SDL.txt
    cp "$scratch/image/COPYING" SDL_image.txt
    cp "$scratch/png/LICENSE" libpng.txt
    cp /usr/share/doc/libz-mingw-w64-dev/copyright zlib.txt
    cp /usr/share/doc/mingw-w64-common/copyright mingw.txt
    cp /usr/share/doc/gcc-mingw-w64-base/copyright GCC.txt
}

# The saver uses SDL's surfaces, and neither its window nor its sound.
build_libraries()
{
    local flags="-O2 -fstack-protector-strong"
    fetch_sources
    configure_and_make sdl --disable-audio --disable-joystick --disable-cdrom --disable-directx \
        --disable-video-opengl --disable-stdio-redirect
    configure_and_make png
    make_image
    keep_licences
    touch "$made"
}

echo "Building the libraries for Windows (some two minutes; log: ${log#"$PWD/"})"
# Not as a condition, so that the first command to fail ends it.
set +e
(set -e; build_libraries) >"$log" 2>&1
[ -f "$made" ] || { tail -n 20 "$log" >&2; stop "cannot build the libraries"; }
