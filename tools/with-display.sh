#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Runs a command on a virtual display of its own, with a window manager:
#   tools/with-display.sh [-m MANAGER] [-s WIDTHxHEIGHT] COMMAND [ARGUMENT...]
# MANAGER is openbox (the default), metacity, mutter, xfwm4, or none; the screen has 1600x1000
# pixels unless told otherwise. The command finds the manager's name in TALVOR_WINDOW_MANAGER, and
# its process in TALVOR_WINDOW_MANAGER_PID.
# Several may run at once: the X server picks a free display. Exits with the command's status.
set -eu

usage() {
    echo "usage: with-display.sh [-m openbox|metacity|mutter|xfwm4|none] [-s WIDTHxHEIGHT]" \
        "COMMAND [ARGUMENT...]" >&2
    exit 2
}

TALVOR_WINDOW_MANAGER=openbox
size=1600x1000
while getopts m:s: option; do
    case $option in
    m) TALVOR_WINDOW_MANAGER=$OPTARG ;;
    s) size=$OPTARG ;;
    *) usage ;;
    esac
done
shift $((OPTIND - 1))
[ $# -gt 0 ] || usage
export TALVOR_WINDOW_MANAGER

case $TALVOR_WINDOW_MANAGER in
openbox) manage="openbox --sm-disable" ;;
metacity) manage="metacity --sm-disable --no-composite" ;;
mutter) manage="mutter --x11 --sm-disable" ;;
xfwm4) manage="xfwm4 --compositor=off" ;;
none) manage="" ;;
*) usage ;;
esac
for tool in Xvfb xprop dbus-run-session ${manage%% *}; do
    command -v "$tool" >/dev/null || { echo "with-display: $tool is not installed" >&2; exit 1; }
done

# All but openbox want a session bus, and settings that are nobody's.
case $manage in
"" | openbox*) ;;
*)
    if [ -z "${TALVOR_DISPLAY_BUS:-}" ]; then
        export TALVOR_DISPLAY_BUS=1
        exec dbus-run-session -- "$0" -m "$TALVOR_WINDOW_MANAGER" -s "$size" "$@"
    fi
    ;;
esac

work=$(mktemp -d)
server=""
manager=""
# shellcheck disable=SC2317 # reached through the trap
clean_up() {
    [ -z "$manager" ] || kill "$manager" 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

wait_for() { # SECONDS COMMAND...: polls until the command succeeds
    tries=$(($1 * 20))
    shift
    until "$@" >/dev/null 2>&1; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || return 1
        sleep 0.05
    done
}

Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp 3>"$work/display" 2>"$work/server.log" &
server=$!
wait_for 60 test -s "$work/display" ||
    { echo "with-display: the X server did not start:" >&2; cat "$work/server.log" >&2; exit 1; }
DISPLAY=":$(cat "$work/display")"
export DISPLAY

# A server that has just started may refuse its first client. The manager announces itself on the
# root window; before that, windows open unmanaged.
# shellcheck disable=SC2086,SC2317 # a command of several words; reached through wait_for
announced() {
    if [ -z "$manager" ] || ! kill -0 "$manager"; then
        env XDG_CONFIG_HOME="$work" XDG_CACHE_HOME="$work" GSETTINGS_BACKEND=memory \
            NO_AT_BRIDGE=1 $manage >"$work/manager.log" 2>&1 &
        manager=$!
    fi
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"
}
[ -z "$manage" ] || wait_for 60 announced ||
    { echo "with-display: the window manager did not start:" >&2; cat "$work/manager.log" >&2; exit 1; }
export TALVOR_WINDOW_MANAGER_PID="$manager"

# The web engine's sandbox refuses to run for root.
[ "$(id -u)" -ne 0 ] || export QTWEBENGINE_DISABLE_SANDBOX=1

status=0
"$@" || status=$?
exit $status
