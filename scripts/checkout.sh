# Sourced by the scripts that build: whether a build can work in this checkout, their directory.

stop()
{
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# Ends the script with one line, before anything is installed, where a build would fail with many.
check_checkout()
{
    # CMake or ninja take these for their own, however they are quoted.
    case "$PWD" in
    *['#;"\|<>'$'\n']* | *'${'*) stop "no build works below a path with # ; \" \\ | < > or \${: $PWD" ;;
    esac
    mkdir -p build 2>/dev/null || stop "cannot write here: $PWD"
    local foreign # but for what `sudo cmake --install` leaves
    foreign=$(find build ! -type l ! -name install_manifest.txt ! -writable -print -quit 2>/dev/null)
    [ -z "$foreign" ] ||
        stop "$(stat -c %U "$foreign") owns $foreign, so remove it first: sudo rm -r $(printf %q "$PWD/build")"
    forget_moved_builds
}

# CMake refuses to continue in a build folder that was made for another source folder.
forget_moved_builds()
{
    local cache
    for cache in build/*/CMakeCache.txt; do
        [ -f "$cache" ] || continue
        [ "$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache")" -ef . ] && continue
        echo "$(dirname "$cache") was made elsewhere: it is configured afresh."
        rm -r "$cache" "$(dirname "$cache")/CMakeFiles"
    done
}
