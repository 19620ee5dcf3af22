#!/usr/bin/env bash
# scripts/try_readme.sh [RELEASE]: runs README's commands as its reader does: a new user with sudo, on
# a bare system of this release of Debian, or of the one named, and a copy of this source tree. Each has
# to succeed, and show or leave what it should. Needs root; ends with 77 where no such system is made.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/checkout.sh
source scripts/packages.sh

# Blocks that are not tried, by their first word, and why.
declare -A untried=(
    [swayidle]="it needs a Wayland session"
    [scripts/build_windows.sh]="it wants an archive; try_windows.sh runs it"
    [./test.sh]="it runs this script"
)
tried=() # the first words of those that are

left_out()
{
    echo "left out: $*"
    exit 77
}

fail()
{
    tail -n 20 "$log"
    echo "README: $*"
    exit 1
}

make_root()
{
    local release=$1 mirror
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' |
        sed -n 1p) # none, where apt has no lists yet: then debootstrap knows one
    unshare --mount debootstrap --variant=minbase --include=sudo "$release" "$root" \
        ${mirror:+"$mirror"} >>"$log" 2>&1 || fail "debootstrap failed"
    # The network as this system reaches it, and no questions.
    cp /etc/resolv.conf "$root/etc/"
    { apt-config dump | grep '^Acquire::'; echo 'APT::Get::Assume-Yes "true";'; } \
        >"$root/etc/apt/apt.conf.d/90host"
    chroot "$root" useradd --create-home --shell /bin/bash reader
    echo "reader ALL=(ALL) NOPASSWD: ALL" >"$root/etc/sudoers.d/reader"
    mkdir "$root/home/reader/quazo"
    tar --exclude=./build --exclude=./.git -c . | tar -x -C "$root/home/reader/quazo"
    chroot "$root" chown -R reader: /home/reader
}

# as_reader COMMANDS: in the source tree. What they mount or leave running ends with them.
as_reader()
{
    local enter='mount -t proc proc "$0/proc" && mount --rbind /dev "$0/dev" && exec chroot "$0" "$@"'
    unshare --mount --pid --fork --kill-child sh -c "$enter" "$root" \
        su --login reader --command "set -e; cd quazo; $1" >>"$log" 2>&1
}

# block WORD: the lines of the block that begins with this word.
block()
{
    awk -v word="$1" '
        /^    / && !inside { wanted = ($1 == word) }
        { inside = /^    / }
        inside && wanted { print substr($0, 5) }' README.md
}

# try WORD RUNNER: runs the block that begins with this word.
try()
{
    local commands
    commands=$(block "$1")
    [ -n "$commands" ] || fail "no block begins with $1"
    tried+=("$1")
    "$2" "$commands" || fail "this fails: $commands"
    echo "README: ${commands%%$'\n'*}"
}

# try_inline COMMAND RUNNER: a command that stands within a sentence or a table.
try_inline()
{
    grep -qF "\`$1\`" README.md || fail "$1 is not in it"
    "$2" "$1" || fail "this fails: $1"
    echo "README: $1"
}

# shows COMMANDS: their last one is the saver; its picture is more than one colour, and TERM ends it.
shows()
{
    as_reader "source scripts/checkout.sh
        source scripts/virtual_display.sh
        scratch=\$(mktemp -d)
        start_display 800x600
        ($1
        ) &
        saver=\$!
        sleep 6
        scrot --overwrite ~/picture.png
        kill \$(pidof quazo)
        wait \$saver" && is_lit "$root/home/reader/picture.png"
}

is_lit()
{
    [ "$(stat -c %s "$1")" -gt 50000 ]
}

all_blocks_are_known()
{
    local word
    for word in $(awk '/^    / && !inside { print $1 } { inside = /^    / }' README.md); do
        [[ " ${tried[*]} " == *" $word "* ]] || [ -n "${untried[$word]:-}" ] ||
            fail "nothing tries the block that begins with $word"
    done
}

nothing_is_left()
{
    local left
    left=$(find "$root" -path "$root/home" -prune -o -iname '*quazo*' -print)
    [ -z "$left" ] || fail "after it is taken out there is still: $left"
}

command -v apt-get >/dev/null || left_out "the system that it makes is a Debian"
[ "$(id -u)" -eq 0 ] || left_out "only root makes a system of its own"
check_checkout
log=$PWD/build/readme.log
: >"$log"
unshare --mount --pid --fork true 2>>"$log" || left_out "nothing may be mounted here"
require_packages debootstrap
scratch=$(mktemp -d)
trap 'rm -rf --one-file-system "$scratch"' EXIT
root=$scratch/root
make_root "${1:-$(. /etc/os-release && echo "$VERSION_CODENAME")}"

try ./run.sh as_reader
is_lit "$root/home/reader/quazo/build/quazo.png" || fail "./run.sh leaves no picture"
try mkdir shows
as_reader "sudo apt-get install dpkg-dev file" || fail "the packages that cpack needs"
try cpack as_reader
try_inline "quazo /s" shows
try_inline "sudo apt-get purge quazo" as_reader
nothing_is_left
try sudo as_reader
try_inline "quazo /s" shows
try_inline "sudo cmake --build build/release --target uninstall" as_reader
nothing_is_left
all_blocks_are_known
