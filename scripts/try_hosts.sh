#!/usr/bin/env bash
# Lets real screen saver hosts and desktops run the installed saver, as an ordinary user on virtual
# displays: each must show a picture and leave no saver behind. One that this system cannot run is
# skipped, and says why. Needs the release build, and the packages that test.sh installs.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
source scripts/checkout.sh
source scripts/virtual_display.sh

# Each a function below, and the commands without which it is skipped. Arguments choose some of them.
hosts=(
    "xscreensaver: xscreensaver"
    "xscreensaver_on_two_monitors: xscreensaver xrandr"
    "xsecurelock: xsecurelock"
    "mate_screensaver: mate-screensaver dbus-daemon gdbus unshare"
    "xfce4_screensaver: xfce4-screensaver xfconf-query dbus-daemon gdbus unshare"
    "quazo_idle_on_x: xprintidle xdotool"
    "quazo_idle_on_sway: sway swayidle Xwayland xdotool"
    "alone_on_weston: weston Xwayland xdotool"
)

umask 022 # the ordinary user reads what is installed
scratch=$(mktemp -d)
chmod 755 "$scratch"
mkdir -m 700 "$scratch/home"
as_user=()
if [ "$(id -u)" -eq 0 ]; then # hosts refuse to run as root
    as_user=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
    chown nobody "$scratch/home"
fi
log=$scratch/log
# By this home all that is started here is known; hosts hand it on, and few other variables.
export HOME=$scratch/home XDG_RUNTIME_DIR=$scratch/home PATH=$scratch/usr/bin:$PATH
unset WAYLAND_DISPLAY XDG_CURRENT_DESKTOP DBUS_SESSION_BUS_ADDRESS
trap 'kill $(jobs -p) 2>/dev/null; end_everything; rm -rf "$scratch"' EXIT

# processes [NAME]: the ids of those that were started here, of all names or of this one.
processes()
{
    local environment id
    for environment in $(grep -lsz "^HOME=$HOME\$" /proc/[0-9]*/environ); do
        id=${environment//[^0-9]/}
        [[ -z ${1-} || $(cat "/proc/$id/comm" 2>/dev/null) = "$1" ]] && echo "$id"
    done
}

end_everything()
{
    nothing_runs || kill $(processes) 2>/dev/null
    wait_until 3 nothing_runs || kill -KILL $(processes) 2>/dev/null
}

nothing_runs() { [ -z "$(processes)" ]; }
savers_run() { [ "$(processes quazo | wc -l)" -eq "$1" ]; }

# A picture is there: one colour packs to a few thousand bytes.
is_lit()
{
    scrot --overwrite "$scratch/picture.png" &&
        [ "$(stat -c %s "$scratch/picture.png")" -gt 50000 ]
}

# wait_until SECONDS COMMAND...
wait_until()
{
    local end=$((SECONDS + $1))
    until "${@:2}"; do
        [ $SECONDS -lt $end ] || return
        sleep 0.1
    done
}

fail()
{
    echo "$host: FAILED: $*"
    tail -n 5 "$log" "$HOME"/*.log 2>/dev/null
    exit 1
}

skip()
{
    echo "$host: skipped: $*"
    exit 0
}

# run COMMAND...: in the background, as the user.
run()
{
    "${as_user[@]}" "$@" >>"$log" 2>&1 &
}

# run_under_usr COMMAND...: the same, but it sees the saver installed under /usr, where these hosts
# look for it.
run_under_usr()
{
    local lay='mount -t overlay overlay -o "lowerdir=$0:/usr" /usr && exec "$@"'
    local apart=(unshare --mount)
    [ "$(id -u)" -eq 0 ] || apart+=(--map-current-user --keep-caps)
    "${apart[@]}" sh -c "$lay" "$scratch/usr" true 2>>"$log" ||
        skip "it looks under /usr, and nothing may be mounted there"
    "${apart[@]}" sh -c "$lay" "$scratch/usr" "${as_user[@]}" "$@" >>"$log" 2>&1 &
}

# check_shown COUNT: that many savers run, and the picture is there.
check_shown()
{
    wait_until 20 savers_run "$1" || fail "not $1 savers, but $(processes quazo | wc -l)"
    wait_until 10 is_lit || fail "nothing is shown"
}

check_gone() { wait_until 10 savers_run 0 || fail "the saver is left behind"; }

try_xscreensaver()
{
    local monitors=${1:-1}
    printf '%s\n' 'mode: one' 'selected: 1' 'lock: False' 'splash: False' \
        'programs: \' '  GL: "Other" false \n\' '' >"$HOME/.xscreensaver"
    XSCREENSAVER_SETTINGS="$HOME/.xscreensaver" scripts/register_xscreensaver.sh add >>"$log"
    chmod 644 "$HOME/.xscreensaver"
    run xscreensaver --no-splash
    wait_until 10 xscreensaver-command -activate >>"$log" 2>&1 || fail "it does not come up"
    check_shown "$monitors"
    xscreensaver-command -deactivate >>"$log"
    check_gone
}

try_xscreensaver_on_two_monitors()
{
    xrandr --setmonitor left 512/150x768/200+0+0 screen >>"$log"
    xrandr --setmonitor right 512/150x768/200+512+0 none >>"$log"
    try_xscreensaver 2
}

try_xsecurelock()
{
    run env XSECURELOCK_SAVER="$scratch/usr/libexec/xsecurelock/saver_quazo" xsecurelock
    check_shown 1
    kill $(processes xsecurelock)
    check_gone
}

# A session bus of the user's.
start_bus()
{
    export DBUS_SESSION_BUS_ADDRESS=unix:path=$HOME/bus
    run dbus-daemon --session --nofork --nopidfile --address="$DBUS_SESSION_BUS_ADDRESS"
    wait_until 10 test -S "$HOME/bus" || fail "no session bus"
}

# check_on_bus SERVICE COMMAND: a host that takes its orders over the bus, by way of that command.
check_on_bus()
{
    "${as_user[@]}" gdbus wait --session --timeout 10 "$1" || fail "it does not come up"
    "${as_user[@]}" "$2" --activate >>"$log" 2>&1
    check_shown 1
    "${as_user[@]}" "$2" --deactivate >>"$log" 2>&1
    check_gone
}

try_mate_screensaver()
{
    mkdir -p "$HOME/.config/glib-2.0/settings"
    printf '%s\n' '[org/mate/screensaver]' "mode='single'" "themes=['screensavers-quazo']" \
        lock-enabled=false >"$HOME/.config/glib-2.0/settings/keyfile"
    start_bus
    run_under_usr env GSETTINGS_BACKEND=keyfile XDG_CURRENT_DESKTOP=MATE mate-screensaver --no-daemon
    check_on_bus org.mate.ScreenSaver mate-screensaver-command
}

try_xfce4_screensaver()
{
    start_bus
    local set=("${as_user[@]}" xfconf-query --channel xfce4-screensaver --create --property)
    "${set[@]}" /saver/mode --type int --set 2 # a single one, always the same
    "${set[@]}" /saver/themes/list --force-array --type string --set screensavers-quazo
    "${set[@]}" /lock/enabled --type bool --set false
    run_under_usr env XDG_CURRENT_DESKTOP=XFCE xfce4-screensaver
    check_on_bus org.xfce.ScreenSaver xfce4-screensaver-command
}

# The saver comes, goes with a key, comes again, and goes with the script.
check_idle_script()
{
    check_shown 1
    xdotool key a
    check_gone
    check_shown 1
    kill "$(cat "$HOME"/.quazo-idle*)"
    check_gone
}

try_quazo_idle_on_x()
{
    run quazo-idle 4
    check_idle_script
}

try_quazo_idle_on_sway()
{
    printf '%s\n' 'xwayland force' "exec quazo-idle 4 >>$HOME/idle.log 2>&1" >"$HOME/sway"
    run env WLR_BACKENDS=x11 WLR_RENDERER=pixman sway --config "$HOME/sway"
    check_idle_script
}

# Xwayland does not know where the pointer is while it is over other windows. That it moved there
# must not count when the saver's window appears.
try_alone_on_weston()
{
    printf '%s\n' '[core]' xwayland=true idle-time=0 '[shell]' background-color=0xff000000 \
        panel-position=none >"$HOME/weston.ini"
    run weston --backend=x11-backend.so --use-pixman --config="$HOME/weston.ini"
    wait_until 10 grep -q "xserver listening" "$log" || fail "it has no Xwayland"
    wait_until 10 grep -q "launching.*shell" "$log" || fail "it has no shell"
    sleep 1
    xdotool mousemove 200 300 sleep 0.2 mousemove 500 400 sleep 0.2 mousemove 600 300
    run env DISPLAY="$(sed -n 's/.*listening on display //p' "$log")" quazo /s
    wait_until 10 savers_run 1
    sleep 3
    check_shown 1
    kill $(processes quazo)
    check_gone
}

# try ENTRY: one row of the table, in a process of its own, so that a signal need not wait for it.
try()
{
    host=${1%:*}
    (
        : >"$log"
        rm -rf "${HOME:?}"/{*,.[!.]*}
        for command in ${1#*:}; do
            command -v "$command" >/dev/null || skip "no $command here"
        done
        start_display 1024x768
        "try_$host"
        echo "$host: picture shown, nothing left behind"
    ) &
    wait $!
    local status=$?
    end_everything
    return $status
}

# By its component, so that the list of what the user has installed stays as it is.
cmake --install build/release --component Unspecified --prefix "$scratch/usr" >/dev/null || exit
status=0
for entry in "${hosts[@]}"; do
    [[ $# -eq 0 || " $* " = *" ${entry%:*} "* ]] || continue
    # A compositor that comes up slowly on a busy machine may miss its turn; it gets one more.
    try "$entry" || try "$entry" || status=1
done
exit $status
