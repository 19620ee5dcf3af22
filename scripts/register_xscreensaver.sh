#!/bin/sh
# Adds the saver to the list in a user's ~/.xscreensaver, once, or takes it out again. The rest of
# the file stays as it is, and so do its owner and mode. XSCREENSAVER_SETTINGS names another file.
set -eu

entry='  GL: "Quazo"  quazo -s  \n\'
# Our entry, as written here, by earlier versions (/s), or by XScreenSaver's settings, which space it
# differently and mark a saver that is switched off with a hyphen. A user's own line is another.
ours='^[-[:space:]]*GL:[[:space:]]*"Quazo"[[:space:]]*quazo [-/]s[[:space:]]*\\n\\$'

fail()
{
    echo "$(basename "$0"): $*" >&2
    exit 1
}

is_registered()
{
    [ -f "$settings" ] && grep -q "$ours" "$settings"
}

# replace_with COMMAND...: the settings become what the command prints; whole or not at all.
replace_with()
{
    new=$(mktemp "$settings.XXXXXX") || fail "cannot write beside $settings"
    trap 'rm -f "$new"' EXIT
    "$@" >"$new"
    if [ -f "$settings" ]; then
        chmod --reference="$settings" "$new"
        # Root may do this in somebody's home. Others own the file already.
        chown --reference="$settings" "$new" 2>/dev/null || true
    fi
    mv "$new" "$settings"
    trap - EXIT
}

with_list()
{
    [ ! -f "$settings" ] || cat "$settings"
    # XScreenSaver adds the savers it knows to whatever list it finds.
    printf 'programs: \\\n%s\n\n' "$entry"
}

with_entry_in_list()
{
    # At its end: the saver that the user has chosen is known by its place in the list.
    ENTRY="$entry" awk '
        /^programs:/ { inside = 1; print; next }
        inside && !/\\$/ { print ENVIRON["ENTRY"]; inside = 0 }
        { print }
        END { if (inside) print ENVIRON["ENTRY"] }' "$settings"
}

without_entry()
{
    grep -v "$ours" "$settings" || true
}

add()
{
    if is_registered; then
        echo "$settings has it already."
        return
    fi
    if [ -f "$settings" ] && grep -q '^programs:' "$settings"; then
        replace_with with_entry_in_list
    else
        replace_with with_list
    fi
    echo "Added to $settings."
}

remove()
{
    if is_registered; then
        replace_with without_entry
        echo "Taken out of $settings."
    else
        echo "$settings does not have it."
    fi
}

case "${1:-}" in
add | remove) ;;
*)
    echo "usage: $(basename "$0") add | remove" >&2
    exit 2
    ;;
esac

named=${XSCREENSAVER_SETTINGS:-$HOME/.xscreensaver}
[ ! -L "$named" ] || [ -e "$named" ] || fail "$named is a link to nothing"
settings=$(readlink -f -- "$named") || fail "no directory for $named" # a link stays a link
[ ! -e "$settings" ] || [ -f "$settings" ] || fail "$settings is not a file"
[ ! -e "$settings" ] || [ -r "$settings" ] || fail "cannot read $settings"

# One run at a time, so that two do not both find no entry and add one.
exec 9<"$(dirname "$settings")"
flock 9
"$1"
