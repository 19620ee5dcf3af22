# Sourced by what shows the saver on a display of its own. The caller sources checkout.sh, makes the
# directory "$scratch", and ends the process "$server" at its end.

# start_display WIDTHxHEIGHT: starts an X server on a free number and sets DISPLAY and server.
start_display()
{
    # The server picks a number, and writes it down once it is ready. Monitors that a client adds
    # stay when it leaves.
    : >"$scratch/number"
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset \
        3>"$scratch/number" 2>"$scratch/server.log" &
    server=$!
    for _ in $(seq 300); do
        [ -s "$scratch/number" ] && break
        kill -0 "$server" 2>/dev/null ||
            stop "cannot start Xvfb: $(tail -n 1 "$scratch/server.log")"
        sleep 0.1
    done
    [ -s "$scratch/number" ] || stop "Xvfb did not come up"
    DISPLAY=":$(cat "$scratch/number")"
    export DISPLAY
}
