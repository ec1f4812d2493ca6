# Sourced by the scripts that run Windows programs under Wine: a virtual screen and a Wine prefix of their own,
# and a way to end everything that was started in them.
#
#   start_wine FOLDER   makes both; the prefix stands in a new folder below FOLDER
#   stop_wine           ends every process of the run, whatever state it is in, and removes the prefix;
#                       also called when the script ends for whatever reason
#   run_limited SECONDS COMMAND...   runs a command that must end within the time
#
# With RYX_KEEP_WINE=1 the prefix stays for a look at it.
#
# shellcheck shell=bash

source "$(dirname "${BASH_SOURCE[0]}")/../common.sh"

# Linux puts a program's heap at random up to 1 GiB behind it. At one start in some thousands that is where Wine maps
# the data it shares with all processes, and the program ends with 1 and no word. So nothing is put at random.
if ! grep --quiet '4....$' /proc/self/personality && setarch --addr-no-randomize true 2> /dev/null; then
    exec setarch --addr-no-randomize bash "$0" "$@"
fi

need_wine() { need_packages wine wine64 "${DESKTOP_PACKAGES[@]}" >&2; }

# Every process of a run carries this variable from its start on, so each can be found again, also one that
# wine has detached from the script's process group.
wine_processes() {
    local environ
    for environ in /proc/[0-9]*/environ; do
        if grep --quiet --null-data --line-regexp --fixed-strings "RYX_WINE_RUN=$RYX_WINE_RUN" "$environ" 2> /dev/null; then
            environ=${environ#/proc/}
            echo "${environ%/environ}"
        fi
    done
}

stop_wine() {
    trap - EXIT
    local pids
    # Wine may be starting a process at this very moment, so once is not enough.
    for _ in 1 2 3 4 5; do
        pids=$(wine_processes)
        [ -n "$pids" ] || break
        # shellcheck disable=SC2086  # one word for each process
        kill -KILL $pids 2> /dev/null || true
        sleep 0.2
    done
    pids=$(wine_processes)
    [ -z "$pids" ] || say "processes that would not end: $pids" >&2
    [ -n "${RYX_KEEP_WINE:-}" ] || rm -rf "$wine_dir"
}

start_wine() {
    mkdir -p "$1"
    wine_dir=$(mktemp -d "$1/wine.XXXXXX")
    RYX_WINE_RUN=$(basename "$wine_dir")-$$
    export RYX_WINE_RUN
    trap stop_wine EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM

    # A home of its own: a prefix links its user folders into the home, and fonts and menus are registered there.
    mkdir "$wine_dir/home"
    export HOME="$wine_dir/home"
    # Below TMPDIR Wine's server is found; all programs of a prefix must meet at the same one.
    unset XDG_CACHE_HOME XDG_CONFIG_HOME XDG_DATA_HOME XDG_RUNTIME_DIR WAYLAND_DISPLAY XAUTHORITY TMPDIR

    mkfifo "$wine_dir/display"
    Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp -noreset 3> "$wine_dir/display" \
        > "$wine_dir/xvfb.log" 2>&1 &
    disown
    local number
    if ! read -r -t 30 number < "$wine_dir/display"; then
        cat "$wine_dir/xvfb.log" >&2
        fail "The virtual screen did not start."
    fi
    export DISPLAY=":$number"
    # Wine leaves the stacking of windows to the window manager; without one, nothing stays on top. It gets no keys
    # of its own: on Windows, too, all keys come to Windows, and Alt+Tab is for the programs' hooks to swallow.
    echo '<openbox_config xmlns="http://openbox.org/3.4/rc"><keyboard/></openbox_config>' > "$wine_dir/openbox.xml"
    openbox --sm-disable --config-file "$wine_dir/openbox.xml" > "$wine_dir/openbox.log" 2>&1 &
    disown

    # No .NET and no HTML engine, so that Wine does not offer to download them; no entries in the desktop's menu;
    # no debugger, whose dialog would keep a crashed program waiting for a click.
    export WINEPREFIX="$wine_dir/prefix" WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}"
    export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d;winedbg.exe=d"
    # Whatever starts first makes the prefix. (wineboot would make it twice at once, with two service managers.)
    run_limited 120 wine cmd /c exit > "$wine_dir/wineboot.log" 2>&1 || {
        cat "$wine_dir/wineboot.log" >&2
        fail "The Wine prefix could not be made."
    }
}

# The command runs in the background, because a shell handles a signal only between foreground commands.
run_limited() {
    local seconds=$1
    shift
    timeout --kill-after=5 "$seconds" "$@" <&0 &
    wait $!
}

# A path as Windows programs see it under Wine.
windows_path() {
    local path="Z:$1"
    echo "${path//\//\\}"
}

# Lets programs that are not installed find the SDK's libraries, and with them their plug-ins.
use_sdk() {
    WINEPATH=$(windows_path "$1/bin")
    export WINEPATH
}
