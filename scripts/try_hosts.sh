#!/usr/bin/env bash
# Lets real screen saver hosts run the installed saver, as an ordinary user on a virtual display:
# each must show a picture and leave no process behind. Needs the release build, and the packages
# that test.sh installs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

umask 022 # the ordinary user reads what is installed
scratch=$(mktemp -d)
chmod 755 "$scratch"
mkdir "$scratch/home"
as_user=()
if [ "$(id -u)" -eq 0 ]; then # hosts refuse to run as root
    as_user=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
    chown nobody "$scratch/home"
fi
trap 'kill $(jobs -p) 2>/dev/null; wait; rm -rf "$scratch"' EXIT

fail()
{
    echo "try_hosts: $*" >&2
    tail -n 5 "$scratch"/home/*.log >&2
    exit 1
}

# wait_until COMMAND...: within ten seconds.
wait_until()
{
    for _ in $(seq 100); do
        "$@" && return
        sleep 0.1
    done
    return 1
}

saver_runs()
{
    pgrep -f '^([^ ]*/xscreensaver/)?quazo [-/]s' >/dev/null
}

no_saver_runs()
{
    ! saver_runs
}

picture_is_lit()
{
    scrot --overwrite "$scratch/picture.png" && # one colour packs to a few thousand bytes
        [ "$(stat -c %s "$scratch/picture.png")" -gt 50000 ]
}

# run_host NAME COMMAND...: in the background, with the installed tree first on its path.
run_host()
{
    local log="$scratch/home/$1.log"
    shift
    "${as_user[@]}" env HOME="$scratch/home" PATH="$scratch/usr/bin:$PATH" \
        "$@" >"$log" 2>&1 &
    host=$!
}

# check NAME: the saver appears, draws, and goes when the host, which `stop` ends, goes.
check()
{
    local name=$1 stop=$2
    wait_until saver_runs || fail "$name does not start the saver"
    wait_until picture_is_lit || fail "$name shows nothing"
    $stop
    wait_until no_saver_runs || fail "$name leaves the saver behind"
    kill "$host" 2>/dev/null || true
    wait "$host" 2>/dev/null || true
    echo "$name: picture shown, nothing left behind"
}

no_saver_runs || fail "a saver runs already"
cmake --install build/release --prefix "$scratch/usr" >/dev/null
cat >"$scratch/home/.xscreensaver" <<'END'
mode: one
selected: 1
lock: False
splash: False
programs: \
  GL: "Other" false \n\

END
chmod 644 "$scratch/home/.xscreensaver"
XSCREENSAVER_SETTINGS="$scratch/home/.xscreensaver" scripts/register_xscreensaver.sh add

exec 3<>"$scratch/number"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 2>"$scratch/home/Xvfb.log" &
wait_until test -s "$scratch/number" || fail "Xvfb does not come up"
DISPLAY=":$(cat "$scratch/number")"
export DISPLAY

deactivate()
{
    xscreensaver-command -deactivate >/dev/null
}

run_host xscreensaver xscreensaver --no-splash
wait_until xscreensaver-command -activate >/dev/null 2>&1 || fail "xscreensaver does not come up"
check xscreensaver deactivate

end_host()
{
    kill "$host"
}

run_host xsecurelock env XSECURELOCK_SAVER="$scratch/usr/libexec/xsecurelock/saver_quazo" xsecurelock
check xsecurelock end_host
