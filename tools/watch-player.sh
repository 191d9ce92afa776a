#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Runs a command that opens a recording in the player, and watches whether it really plays:
#   tools/with-display.sh tools/watch-player.sh RECORDING SCREENSHOTS PICTURE COMMAND [ARGUMENT...]
# RECORDING is made if it is missing: a picture that is all red at first, then blue. Both must come
# to be seen, one after the other. Then the player's own screenshot must appear in the folder
# SCREENSHOTS, no script of the map may have failed, and the player must end when its window is
# closed. It prints the window's class and what the player said, and keeps what was seen in PICTURE.
# The settings must be those of a first start.
set -eu

[ $# -ge 4 ] || {
    echo "usage: watch-player.sh RECORDING SCREENSHOTS PICTURE COMMAND [ARGUMENT...]" >&2
    exit 2
}
recording=$1
screenshots=$2
picture=$3
shift 3
red_seconds=8
size=640x360
camera_button="64 442" # in the window of a first start
name=$(basename "$recording")
said=$(mktemp)
player=""
trap '[ -z "$player" ] || kill "$player" 2>/dev/null || true; cat "$said"; rm -f "$said"' EXIT
# The map's servers are not there for this: requests go to a port where nobody listens.
export QTWEBENGINE_CHROMIUM_FLAGS=--proxy-server=127.0.0.1:9

fail() {
    echo "watch-player: $*" >&2
    exit 1
}

wait_for() { # SECONDS COMMAND...: polls until the command succeeds
    until_second=$(($(date +%s) + $1))
    shift
    until "$@"; do
        [ "$(date +%s)" -lt $until_second ] || return 1
        sleep 0.2
    done
}

make_recording() {
    ffmpeg -v error -f lavfi -i "color=red:s=$size:r=25:d=$red_seconds" \
        -f lavfi -i "color=blue:s=$size:r=25:d=60" -filter_complex concat=n=2 \
        -c:v libx264 -pix_fmt yuv420p "$recording" || fail "cannot make $recording"
}

# shellcheck disable=SC2317 # reached through wait_for
has_window() {
    kill -0 "$player" 2>/dev/null || fail "the player has ended"
    window=$(xdotool search --onlyvisible --name "^Talvor Player" 2>/dev/null | head -n 1)
    [ -n "$window" ]
}

# shellcheck disable=SC2317 # reached through wait_for
shows() { # COLOUR: whether a good part of the screen has it
    kill -0 "$player" 2>/dev/null || fail "the player has ended"
    import -window root "$picture" &&
        [ "$(convert "$picture" -fuzz 15% -fill black +opaque "$1" -fill white -opaque "$1" \
            -format '%[fx:mean>0.05]' info:)" = 1 ]
}

# shellcheck disable=SC2317 # reached through wait_for
has_screenshot() {
    for screenshot in "$screenshots/ScreenShot_${name%%.*}__"*.jpeg; do
        [ "$(identify -format %wx%h "$screenshot" 2>/dev/null)" != $size ] || return 0
    done
    return 1
}

[ -e "$recording" ] || make_recording
"$@" >"$said" 2>&1 &
player=$!
wait_for 60 has_window || fail "no window"
xprop -id "$window" WM_CLASS
wait_for 60 shows red || fail "the beginning of the recording was not seen; see $picture"
wait_for 60 shows blue || fail "the recording does not go on; see $picture"
# shellcheck disable=SC2086 # two words
xdotool mousemove --window "$window" $camera_button click 1
wait_for 60 has_screenshot || fail "no screenshot of $size in $screenshots"
# Alt+F4 is what the window manager turns into a close request.
xdotool windowactivate --sync "$window" key alt+F4
status=0
wait $player || status=$?
player=""
[ $status -eq 0 ] || fail "the player ended with status $status"
! grep -q '^js: ' "$said" || fail "the map does not work"
