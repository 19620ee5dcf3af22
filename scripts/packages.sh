# Sourced by run.sh and test.sh: what the project needs of a Debian system, and how it gets there.
# Either of two packages joined by a bar will do; the first is the one that is installed.

build_packages="cmake ninja-build g++ pkg-config libsdl1.2-dev libsdl-image1.2-dev
    libfltk1.3-dev|libfltk1.4-dev libgl-dev libglu1-mesa-dev libx11-dev libxext-dev libxrandr-dev
    libxrender-dev libpng-dev"
run_packages="libgl1-mesa-dri"
virtual_display_packages="xvfb scrot"
fuzz_packages="clang libclang-rt-dev"
host_packages="xscreensaver xsecurelock mate-screensaver weston sway swayidle xwayland xprintidle
    xdotool x11-xserver-utils dbus-daemon libglib2.0-bin"
test_packages="python3 clang-format clang-tidy libgtest-dev libgmock-dev libbenchmark-dev
    libxtst-dev libxfixes-dev xvfb openbox scrot procps dpkg-dev file lintian mandoc
    $host_packages"
windows_packages="g++-mingw-w64-x86-64-posix libz-mingw-w64-dev dpkg-dev make nsis zip"
windows_test_packages="wine wine64 googletest xdotool x11-utils imagemagick"

# require_packages PACKAGE...: installs those that are missing, as root or with sudo; ends the
# script with one line when that cannot be done. On a system without Debian's packages it does
# nothing: CMake names what is missing there.
require_packages()
{
    command -v apt-get >/dev/null && command -v dpkg-query >/dev/null || return 0
    local package missing="" as_root=""
    for package in "$@"; do
        any_installed ${package//|/ } || missing="$missing ${package%%|*}"
    done
    [ -n "$missing" ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        as_root=sudo
        command -v sudo >/dev/null || stop "run me as root or install sudo: missing:$missing"
    fi
    install_packages $missing
}

any_installed()
{
    local package
    for package in "$@"; do
        # A line for each architecture.
        ! dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -x installed \
            >/dev/null || return 0
    done
    return 1
}

# install_packages PACKAGE...: with `as_root` before each command.
install_packages()
{
    # One wait for a lock that another package run may hold, no questions, and nothing but what
    # is named.
    local install=($as_root env DEBIAN_FRONTEND=noninteractive LC_ALL=C apt-get
        -o DPkg::Lock::Timeout=120 install --no-install-recommends)
    local log
    log=$(mktemp)
    echo "Installing: $*"
    $as_root apt-get update >"$log" 2>&1 || give_up "$log" "$@"
    "${install[@]}" --assume-no "$@" 2>/dev/null | # how much it is
        grep -E '^(Need to get|After this operation)' || true
    (while sleep 2 && kill -0 $$; do printf .; done) 2>/dev/null & # it goes on, or we are gone
    local dots=$! status=0
    "${install[@]}" -y "$@" >"$log" 2>&1 || status=$?
    kill "$dots"
    wait "$dots" 2>/dev/null || true
    echo
    [ "$status" -eq 0 ] || give_up "$log" "$@"
    rm -f "$log"
}

# give_up LOG PACKAGE...
give_up()
{
    stop "cannot install ${*:2}: $(tail -n 1 "$1") (all of it: $1)"
}
