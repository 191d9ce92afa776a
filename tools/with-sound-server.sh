#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Runs a command with a sound server of its own, whose one device plays to nobody:
#   tools/with-sound-server.sh COMMAND [ARGUMENT...]
# Exits with the command's status.
set -eu

[ $# -gt 0 ] || { echo "usage: with-sound-server.sh COMMAND [ARGUMENT...]" >&2; exit 2; }
command -v pulseaudio >/dev/null ||
    { echo "with-sound-server: pulseaudio is not installed" >&2; exit 1; }

work=$(mktemp -d)
server=""
# shellcheck disable=SC2317 # reached through the trap
clean_up() {
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

PULSE_RUNTIME_PATH=$work PULSE_STATE_PATH=$work pulseaudio -n --daemonize=no --use-pid-file=no \
    --exit-idle-time=-1 --disable-shm=yes --load=module-null-sink \
    --load="module-native-protocol-unix auth-anonymous=1 socket=$work/socket" \
    >"$work/log" 2>&1 &
server=$!
PULSE_SERVER=unix:$work/socket
export PULSE_SERVER

tries=1200
until pactl info >/dev/null 2>&1; do
    tries=$((tries - 1))
    if [ $tries -le 0 ] || ! kill -0 "$server" 2>/dev/null; then
        echo "with-sound-server: the sound server did not start:" >&2
        cat "$work/log" >&2
        exit 1
    fi
    sleep 0.05
done

status=0
"$@" || status=$?
exit $status
