#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
set -eu

usage() {
    cat <<'END'
Installs what is missing, builds the player and starts it:
  ./run.sh [--] [RECORDING...]
Without recordings it opens demo recordings, which it makes on the first run: a pair, front and
rear, which it plays, and an AVI. Without a display it plays on a virtual one, leaves a screenshot
in the build folder and ends. Packages are installed as root, or through sudo.
END
}

root=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd -P)
build=$root/build/release
player=$build/src/talvor-player
demo=$root/build/demo-recordings
screenshot=$root/build/screenshot.png
player_log=$root/build/player-log.txt
play_tenths=126 # of a second: on a virtual display, before the screenshot
open_tenths=1200 # that the window may take
# shellcheck source=tools/checkout.sh
. "$root/tools/checkout.sh"

make_demo() {
    [ -f "$demo/MOVA0001.MP4" ] && [ -f "$demo/MOVB0001.MP4" ] && [ -f "$demo/MOVA0002.AVI" ] &&
        return
    echo "Making the demo recordings (once, about a minute) ..."
    "$build/tools/demo-recordings" "$demo" || fail "could not make the demo recordings"
}

has_display() {
    [ -n "${WAYLAND_DISPLAY:-}" ] || { [ -n "${DISPLAY:-}" ] && xdpyinfo >/dev/null 2>&1; }
}

ended() { # says how the player ended, and its last words
    status=0
    wait $process || status=$?
    tail -n 20 "$player_log" >&2
    fail "the player ended with status $status"
}

rest() { # a tenth of a second, in which the player must not end
    kill -0 $process 2>/dev/null || ended
    sleep 0.1
}

await_window() {
    tenths=$open_tenths
    until window=$(xdotool search --onlyvisible --pid $process --name "Talvor Player" 2>/dev/null); do
        rest
        tenths=$((tenths - 1))
        [ $tenths -gt 0 ] || fail "the player's window did not open"
    done
    window=${window%%[!0-9]*}
}

# Runs on the virtual display: lets the player play, takes the picture, closes the window.
play_and_picture() {
    "$player" "$@" >"$player_log" 2>&1 &
    process=$!
    await_window
    tenths=$play_tenths
    while [ $tenths -gt 0 ]; do
        rest
        tenths=$((tenths - 1))
    done
    # Off the screen: the map lies over the window in one of its own.
    eval "$(xdotool getwindowgeometry --shell "$window")"
    # shellcheck disable=SC2153 # set by the line before
    import -window root -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage "$screenshot" ||
        fail "could not take the screenshot"
    # Alt+F4 is what the window manager turns into a close request.
    xdotool windowactivate --sync "$window" key alt+F4
    wait $process || ended
}

if [ "${1:-}" = --on-virtual-display ]; then
    shift
    play_and_picture "$@"
    exit
fi

for argument in "$@"; do
    case $argument in
    -h | --help)
        usage
        exit
        ;;
    --) break ;;
    -*) fail "there is no option $argument; a recording whose name begins with - goes behind --" ;;
    esac
done

check_checkout
"$root/tools/install-packages.sh"
is_configured release || configure release
cmake --build "$build" || fail "the build failed"
if [ $# -eq 0 ] || [ "$*" = -- ]; then
    make_demo
    set -- "$demo/MOVA0001.MP4" "$demo/MOVB0001.MP4" "$demo/MOVA0002.AVI"
fi
if has_display; then
    # Not in the window of a player that is installed.
    exec "$player" --new-window "$@"
fi
echo "There is no display: playing on a virtual one for a few seconds ..."
"$root/tools/with-display.sh" "$root/run.sh" --on-virtual-display "$@"
echo "Screenshot: $screenshot"
