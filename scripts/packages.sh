# Sourced by run.sh and test.sh: what the project needs of a Debian system, and how it gets there.

build_packages="cmake ninja-build g++ pkg-config libsdl1.2-dev libsdl-image1.2-dev libfltk1.3-dev
    libgl-dev libglu1-mesa-dev libx11-dev libxext-dev libxrandr-dev libpng-dev"
run_packages="libgl1-mesa-dri"
virtual_display_packages="xvfb scrot"
fuzz_packages="clang libclang-rt-dev"
test_packages="python3 clang-format clang-tidy libgtest-dev libgmock-dev libbenchmark-dev
    libxtst-dev libxfixes-dev xvfb openbox scrot procps xscreensaver xsecurelock dpkg-dev file lintian"

# require_packages PACKAGE...: installs those that are missing, as root or with sudo; ends the
# script with one line when that cannot be done.
require_packages()
{
    local package missing="" as_root=""
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing="$missing $package"
    done
    [ -n "$missing" ] || return 0
    command -v apt-get >/dev/null || stop "this system has no apt-get: install by hand:$missing"
    if [ "$(id -u)" -ne 0 ]; then
        as_root=sudo
        command -v sudo >/dev/null || stop "run me as root or install sudo: missing:$missing"
    fi
    echo "Installing:$missing"
    local log
    log=$(mktemp)
    # One wait for a lock that another package run may hold, no questions, and nothing but what
    # is named.
    if ! { $as_root apt-get update && $as_root env DEBIAN_FRONTEND=noninteractive apt-get \
        -o DPkg::Lock::Timeout=120 install -y --no-install-recommends $missing; } >"$log" 2>&1; then
        stop "cannot install:$missing (see $log)"
    fi
    rm -f "$log"
}

stop()
{
    echo "$(basename "$0"): $*" >&2
    exit 1
}
