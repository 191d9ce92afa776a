#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs what is missing, builds the player and starts it:
#   ./run.sh [RECORDING...]
# Without recordings it opens demo recordings, which it makes on the first run: a pair, front and
# rear, which it plays, and an AVI. Without a display it plays on a virtual one, leaves a screenshot
# in the build folder and ends.
set -eu

root=$(cd "$(dirname "$0")" && pwd)
build=$root/build/release
player=$build/src/talvor-player
demo=$root/build/demo-recordings
screenshot=$root/build/screenshot.png
play_seconds=12.6 # on a virtual display, before the screenshot

fail() {
    echo "run.sh: $*" >&2
    exit 1
}

quietly() { # runs a command; shows what it said only if it failed
    log=$root/build/log.txt
    "$@" >"$log" 2>&1 || { cat "$log" >&2; fail "failed: $*"; }
}

build_player() {
    mkdir -p "$root/build"
    [ -f "$build/build.ninja" ] || quietly cmake -S "$root" --preset release
    cmake --build "$build" || fail "the build failed"
}

make_demo() {
    [ -f "$demo/MOVA0001.MP4" ] && [ -f "$demo/MOVB0001.MP4" ] && [ -f "$demo/MOVA0002.AVI" ] &&
        return
    echo "Making the demo recordings (once, about a minute) ..."
    "$build/tools/demo-recordings" "$demo" || fail "could not make the demo recordings"
}

has_display() {
    [ -n "${WAYLAND_DISPLAY:-}" ] || { [ -n "${DISPLAY:-}" ] && xdpyinfo >/dev/null 2>&1; }
}

# Runs on the virtual display: lets the player play, takes the picture, closes the window.
play_and_picture() {
    "$player" "$@" &
    process=$!
    window=$(timeout 30 xdotool search --sync --onlyvisible --pid $process --name "Talvor Player" |
        head -n 1)
    [ -n "$window" ] || fail "the player's window did not open"
    sleep $play_seconds
    # Off the screen: the map lies over the window in one of its own.
    eval "$(xdotool getwindowgeometry --shell "$window")"
    # shellcheck disable=SC2153 # set by the line before
    import -window root -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage "$screenshot" ||
        fail "could not take the screenshot"
    # Alt+F4 is what the window manager turns into a close request.
    xdotool windowactivate --sync "$window" key alt+F4
    wait $process || fail "the player ended with status $?"
}

if [ "${1:-}" = "--on-virtual-display" ]; then
    shift
    play_and_picture "$@"
    exit
fi

"$root/tools/install-packages.sh"
build_player
if [ $# -eq 0 ]; then
    make_demo
    set -- "$demo/MOVA0001.MP4" "$demo/MOVB0001.MP4" "$demo/MOVA0002.AVI"
fi
if has_display; then
    exec "$player" "$@"
fi
echo "There is no display: playing on a virtual one for a few seconds ..."
"$root/tools/with-display.sh" "$root/run.sh" --on-virtual-display "$@"
echo "Screenshot: $screenshot"
