#!/bin/sh
# Adds the saver to the list in a user's ~/.xscreensaver, once, or takes it out again.
set -eu

settings=$(readlink -f -- "${XSCREENSAVER_SETTINGS:-$HOME/.xscreensaver}") # a link stays one
entry='  GL: "Quazo"  quazo /s  \n\'

is_registered()
{
    [ -f "$settings" ] && grep -qF '"Quazo"' "$settings"
}

# replace_with COMMAND...: the settings become what the command prints; whole or not at all.
replace_with()
{
    new=$(mktemp "$settings.XXXXXX")
    trap 'rm -f "$new"' EXIT
    "$@" >"$new"
    [ ! -f "$settings" ] || chmod --reference="$settings" "$new"
    mv "$new" "$settings"
    trap - EXIT
}

with_entry()
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
    grep -vF '"Quazo"' "$settings" || true
}

case "${1:-}" in
add)
    if is_registered; then
        echo "$settings has it already."
    elif [ -f "$settings" ] && grep -q '^programs:' "$settings"; then
        replace_with with_entry_in_list
        echo "Added to $settings."
    else
        replace_with with_entry
        echo "Added to $settings."
    fi
    ;;
remove)
    if is_registered; then
        replace_with without_entry
        echo "Taken out of $settings."
    else
        echo "$settings does not have it."
    fi
    ;;
*)
    echo "usage: $(basename "$0") add | remove" >&2
    exit 2
    ;;
esac
