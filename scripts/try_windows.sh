#!/usr/bin/env bash
# Builds for Windows and tries it under wine, on a virtual display with a window manager: the room
# tests of zrk and surface, the setup program, and the saver that it installed, as its users meet it.
#
#     scripts/try_windows.sh [--sdl-image FILE]
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
source scripts/checkout.sh
source scripts/packages.sh
source scripts/virtual_display.sh

check_checkout
# With the tests, one of which is built here too.
require_packages $build_packages $run_packages $test_packages $windows_packages $windows_test_packages
log=build/windows.log
{
    scripts/build_windows.sh "$@" &&
        cmake --preset release -DBUILD_TESTING=ON && cmake --build --preset release --target vertex_hash &&
        cmake --preset windows -DBUILD_TESTING=ON && cmake --build --preset windows
} >"$log" 2>&1 || { status=$?; tail -n 20 "$log" >&2; exit $status; }

scratch=$(mktemp -d)
export HOME="$scratch" TMPDIR="$scratch" WINEPREFIX="$scratch/prefix" WINEDLLOVERRIDES=mscoree,mshtml=
export WINEDEBUG=-all
export LP_NUM_THREADS=0 # what software OpenGL draws with one core leaves the other to wine

clean_up()
{
    wineserver -k 2>/dev/null
    kill $(jobs -p) 2>/dev/null
    wait
    rm -rf "$scratch"
}
trap clean_up EXIT

# use_display SIZE: a new one, for all of wine: its first process keeps the display for the others.
use_display()
{
    wineserver -k 2>/dev/null && wineserver -w
    start_display "$1"
    openbox >/dev/null 2>&1 & # without a window manager wine gives no window the keyboard
}

failures=0

# check NAME COMMAND...
check()
{
    local name=$1 begin=$SECONDS result=passed
    shift
    "$@" || { result=FAILED; failures=$((failures + 1)); }
    printf '%-60s %-6s %3d s\n' "$name" "$result" $((SECONDS - begin))
}

# wait_until COMMAND...: within twenty seconds.
wait_until()
{
    for _ in $(seq 200); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    echo "never: $*"
    return 1
}

title='quazo! screen saver v1e-32 beta'

start()
{
    wine "$saver" "$@" >"$scratch/saver.log" 2>&1 &
    pid=$!
}

appears()
{
    wait_until xdotool search --onlyvisible --name "$title" && sleep 2 # a few frames
}

is_gone()
{
    ! kill -0 "$pid" 2>/dev/null
}

# ends_with STATUS: of itself, within twenty seconds.
ends_with()
{
    local status
    wait_until is_gone || { kill -KILL "$pid"; return 1; }
    wait "$pid"
    status=$?
    [ "$status" -eq "$1" ] || { echo "status $status"; return 1; }
}

# measure PICTURE OPERATION... FORMULA: of the brightest channel of each pixel, from 0 to 1.
measure()
{
    convert "$1" -separate -evaluate-sequence max "${@:2:$#-2}" -format "%[fx:${*: -1}]" info:
}

# holds CONDITION: of numbers.
holds()
{
    [ "$(echo "" | awk "{ print ($1) }")" = 1 ] || { echo "not true: $1"; return 1; }
}

# The last row of the screen is not covered.
looks_right()
{
    local picture="$scratch/picture.png"
    scrot --overwrite "$picture"
    holds "$(measure "$picture" 'mean * 255') >= 25" &&
        holds "$(measure "$picture" 'mean * 255') <= 140" &&
        holds "$(measure "$picture" -threshold 99.9% mean) <= 0.08" &&
        holds "$(measure "$picture" -crop 640x1+0+479 maxima) == 0"
}

# Every start has other motions, and balls close to the eye are bright: one good moment of ten will do.
picture_is_neither_dark_nor_burnt()
{
    start /s
    appears
    for _ in $(seq 10); do
        sleep 2
        looks_right >/dev/null && return
    done
    looks_right
}

held_escape_ends()
{
    xdotool keydown Escape
    ends_with 0
    local result=$?
    xdotool keyup Escape
    return $result
}

# While the program sleeps, press and release come in one batch.
tap_within_a_frame_ends()
{
    start /s
    appears
    kill -STOP "$pid"
    xdotool key Escape
    sleep 0.5
    kill -CONT "$pid"
    ends_with 0
}

# ends_by COMMAND...
ends_by()
{
    start /s
    appears && "$@" && ends_with 0
}

mouse_travel_ends()
{
    xdotool mousemove 300 200
    start /s
    appears
    xdotool mousemove_relative 30 20
    sleep 1
    ! is_gone || { echo "50 pixels of mouse travel end it"; return 1; }
    xdotool mousemove_relative 30 30
    ends_with 0
}

# A dark grey surface in one frame of 32, and in the others one that adds nothing: in between the
# picture has to fade to black, which 8 bits a channel do not.
fades_to_black()
{
    local data="$scratch/fade/###quazo!_data###" black=0 lit=0 shader maximum
    mkdir -p "$data"
    printf 'textures.txt\nshaders.txt\n' >"$data/caustics.qvd"
    printf '1\none.ppm\n' >"$scratch/fade/textures.txt"
    printf 'P3 1 1 255  0 0 0\n' >"$scratch/fade/one.ppm"
    for shader in $(seq 32); do
        [ "$shader" = 1 ] && level=0.05 || level=0
        printf 's\n{\ncolor: <%s, %s, %s, 1>\nblend: one, one\n}\n' $level $level $level
    done >"$scratch/fade/shaders.txt"
    QUAZO_WINDOWS_DIRECTORY=$(winepath -w "$scratch/fade") start /s
    appears
    for _ in $(seq 20); do
        scrot --overwrite "$scratch/fade.png"
        maximum=$(measure "$scratch/fade.png" maxima)
        [ "$maximum" = 0 ] && black=$((black + 1)) || lit=$((lit + 1))
    done
    xdotool key Escape
    ends_with 0 && holds "$black > 0" && holds "$lit > 0"
}

resident_kilobytes()
{
    awk '/^VmRSS/ { print $2 }' "/proc/$pid/status"
}

keeps_pace_and_memory()
{
    local first last
    WINEDEBUG=fps start /s
    appears && sleep 5
    first=$(resident_kilobytes)
    sleep 15
    last=$(resident_kilobytes)
    xdotool key Escape
    ends_with 0 && holds "$last - $first < 4096" || return 1
    # Lines of "... N frames in 1.50s, total ... @ approx 60.00fps, total 60.00fps".
    last=$(sed -n 's/.*@ approx \([0-9.]*\)fps.*/\1/p' "$scratch/saver.log" | sort -n | tail -n 1)
    holds "${last:-0} > 0" && holds "$last < 63"
}

# show COUNT: so many of our windows.
show()
{
    [ "$(xdotool search --onlyvisible --name "$title" | wc -l)" = "$1" ]
}

# Whichever of the two has the keyboard ends first.
two_run_at_once()
{
    local first
    start /s
    appears
    first=$pid
    start /s
    wait_until show 2 && sleep 2
    xdotool key Escape
    wait_until show 1 && sleep 1
    xdotool key Escape
    ends_with 0 && pid=$first && ends_with 0
}

front_is_box()
{
    local front
    front=$(xprop -root _NET_CLIENT_LIST_STACKING | sed 's/.*[ ,]//')
    ! xprop -id "$front" WM_NAME | grep -qF "$title" && [ "$(xdotool getactivewindow)" -eq $((front)) ]
}

# The box is above our window, and the flag of a running saver, set once, is cleared at the end.
missing_data_is_said_in_front()
{
    local flags
    wine reg add 'HKCU\Software\Wine\Debug' /v RelayInclude /d user32.SystemParametersInfoA /f \
        >"$scratch/reg.log"
    QUAZO_WINDOWS_DIRECTORY='C:\nowhere' WINEDEBUG=+relay start /s
    appears && wait_until front_is_box && xdotool key Return && ends_with 1
    flags=$(sed -n 's/.*SystemParametersInfoA(00000061,0*\([01]\),.*/\1/p' "$scratch/saver.log")
    [ "$flags" = $'1\n0' ] || { echo "the flag was set to" $flags; return 1; }
}

about_box_shows()
{
    start "$@"
    wait_until front_is_box && xdotool key Return && ends_with 0
}

quits_silently()
{
    start "$@"
    ends_with 0
}

vertices_are_those_of_linux()
{
    local here there
    here=$(build/release/tests/surface/vertex_hash)
    there=$(wine build/windows/tests/surface/vertex_hash.exe | tr -d '\r')
    [ -n "$here" ] && [ "$here" = "$there" ] || { echo "here $here, there $there"; return 1; }
}

# room_tests PROGRAM OPTION...
room_tests()
{
    timeout 300 wine "build/windows/tests/$1.exe" --gtest_brief=1 "${@:2}" >"$scratch/tests.log" 2>&1 ||
        { tail -n 20 "$scratch/tests.log"; return 1; }
}

portable_copy_runs()
{
    saver=build/windows/contents/quazo.scr
    ends_by xdotool key Escape
}

windows="$WINEPREFIX/drive_c/windows"
uninstall_key='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\quazo'
desktop_key='HKCU\Control Panel\Desktop'

setup_installs()
{
    saver='C:\windows\system32\quazo.scr'
    wine build/windows/quazo-*-setup.exe /S && [ -f "$windows/system32/quazo.scr" ] &&
        [ -f "$windows/###quazo!_data###/caustics.qvd" ] &&
        wine reg query "$uninstall_key" >"$scratch/reg.log"
}

uninstalled()
{
    [ ! -e "$windows/system32/quazo.scr" ] && [ ! -e "$windows/###quazo!_data###" ] &&
        [ ! -e "$WINEPREFIX/drive_c/Program Files/quazo" ]
}

uninstalling_leaves_nothing()
{
    wine reg add "$desktop_key" /v SCRNSAVE.EXE /d "$saver" /f >"$scratch/reg.log"
    wine 'C:\Program Files\quazo\uninstall.exe' /S
    wait_until uninstalled && ! wine reg query "$uninstall_key" >"$scratch/reg.log" 2>&1 &&
        ! wine reg query "$desktop_key" /v SCRNSAVE.EXE >"$scratch/reg.log" 2>&1
}

wine_starts()
{
    wineboot -i >"$scratch/boot.log" 2>&1
}

use_display 640x480
check "wine starts" wine_starts
# A file cannot be made to fail on demand there.
check "zrk's tests" room_tests zrk/zrk_tests \
    --gtest_filter='-*CannotBeClosed:*ReadError*:*NotClosed:*UnknownOptionBeforeClosing'
check "surface's tests" room_tests surface/surface_tests
check "surface's exactness tests" room_tests surface/surface_exactness_tests
check "the vertices are those of Linux, bit for bit" vertices_are_those_of_linux
check "a portable copy runs, with the data beside it" portable_copy_runs
check "the setup program installs, without questions" setup_installs
check "the picture is neither dark nor burnt" picture_is_neither_dark_nor_burnt
check "a held Escape ends it" held_escape_ends
check "a tap of Escape within a frame ends it" tap_within_a_frame_ends
for button in 1 2 3; do
    check "mouse button $button ends it" ends_by xdotool click $button
done
check "Alt+F4 ends it" ends_by xdotool key alt+F4
check "110 pixels of mouse travel end it, and 50 do not" mouse_travel_ends
check "trails fade to black" fades_to_black
check "two run at once" two_run_at_once
check "missing data is said in front, status 1, flag cleared" missing_data_is_said_in_front
check "the about box, without an argument" about_box_shows
check "the about box, for settings" about_box_shows /c:65552
check "a preview quits silently" quits_silently /p 65552
check "a change of password quits silently" quits_silently /a
use_display 160x120 # small enough for more than 60 frames a second with software OpenGL
check "60 frames a second at most, and no more memory" keeps_pace_and_memory
check "uninstalling leaves nothing" uninstalling_leaves_nothing
[ "$failures" = 0 ] || stop "$failures failed"
