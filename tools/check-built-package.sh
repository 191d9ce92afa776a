#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the player's package and checks it without installing it: what Debian's checkers say, how
# the program is hardened, and whether it plays from where the package was unpacked. Then the same
# build is installed into a prefix of its own, plays there, and is uninstalled.
#   tools/check-built-package.sh
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
build=$root/build/release
work=$(mktemp -d)
unpacked=$work/unpacked
prefix="$work/a [prefix"

# What stands in the build folder about an installation of the developer's comes back.
put_back() {
    for record in install_manifest.txt install_folders.txt; do
        rm -f "$build/$record"
        [ ! -e "$work/$record" ] || mv "$work/$record" "$build/$record"
    done
    rm -rf "$work"
}
trap put_back EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

fail() {
    echo "check-built-package: $*" >&2
    exit 1
}

quietly() { # runs a command; shows what it said only if it failed
    "$@" >"$work/log.txt" 2>&1 || { cat "$work/log.txt" >&2; fail "failed: $*"; }
}

check_hardening() { # PROGRAM
    readelf -hdlsW "$1" >"$work/elf.txt"
    for mark in "Position-Independent Executable" "Flags: NOW" GNU_RELRO __stack_chk_fail \
        "printf_chk@"; do
        grep -q "$mark" "$work/elf.txt" || fail "$1 is built without protection: no $mark"
    done
    ! grep -q '\.symtab' "$work/elf.txt" || fail "$1 is not stripped"
}

# The links of the package lead to what other packages bring.
stand_in_for_dependencies() {
    mkdir -p "$unpacked/usr/share/javascript"
    ln -s /usr/share/javascript/leaflet "$unpacked/usr/share/javascript/leaflet"
    ln -s "$(command -v ffmpeg)" "$unpacked/usr/bin/ffmpeg"
    for link in ffmpeg maps/leaflet/leaflet.js; do
        [ -r "$unpacked/usr/lib/talvor-player/$link" ] || fail "the link to $link is broken"
    done
}

play() { # RECORDING PROGRAM
    home=$(mktemp -d -p "$work")
    # shellcheck disable=SC2016 # the words are those of the inner shell
    quietly env -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u XDG_CACHE_HOME HOME="$home" LC_ALL=C.UTF-8 \
        "$root/tools/with-display.sh" "$root/tools/watch-player.sh" "$work/$1" \
        "$home/Pictures/Talvor Player V1.6 20200828" "$root/build/package/$1.png" \
        "$2" "$work/$1"
}

# DESTDIR may be set. Others' folders stay, be they as empty as they may.
install_and_uninstall() { # PREFIX
    top=${DESTDIR:-}$1
    mkdir -p "$top/share/applications"
    quietly cmake --install "$build" --prefix "$1"
    find "$top" ! -type d | sed "s|^${DESTDIR:-}||" | sort >"$work/found.txt"
    tr ';' '\n' <"$build/install_manifest.txt" | sort >"$work/listed.txt"
    diff "$work/found.txt" "$work/listed.txt" || fail "the manifest is not what was installed"
    "$top/bin/talvor-player" --version >/dev/null || fail "the installed program does not start"
    [ -z "${2:-}" ] || "$2" clip.avi "$top/bin/talvor-player"
    quietly cmake --build "$build" --target uninstall
    [ "$(find "$top" | sort | tr '\n' ' ')" = "$top $top/share $top/share/applications " ] ||
        fail "the uninstallation leaves the wrong things: $(find "$top")"
}

# Earlier versions brought a copy of the drawing library, and users had their keys beside the program.
install_over_older() { # PREFIX
    maps=$1/lib/talvor-player/maps
    mkdir -p "$maps/leaflet"
    touch "$maps/leaflet/leaflet.js"
    echo "window.talvorMapKeys = { google: 'a-user', baidu: '' };" >"$maps/keys.js"
    quietly cmake --install "$build" --prefix "$1"
    grep -q a-user "$maps/keys.js" || fail "an installation replaces the keys of a user"
    [ -s "$maps/leaflet/leaflet.js" ] || fail "an installation keeps an old drawing library"
    quietly cmake --build "$build" --target uninstall
}

echo "== package"
package=$("$root/tools/make-package.sh" | tail -n 1)
for record in install_manifest.txt install_folders.txt; do
    [ ! -e "$build/$record" ] || mv "$build/$record" "$work/$record"
done
lintian --allow-root --fail-on error,warning "$package"
dpkg-deb -x "$package" "$unpacked"
check_hardening "$unpacked/usr/lib/talvor-player/talvor-player"
check_hardening "$unpacked/usr/bin/talvor-telemetry"
desktop-file-validate "$unpacked"/usr/share/applications/*.desktop
quietly appstreamcli validate --no-net "$unpacked"/usr/share/metainfo/*.xml
quietly appstreamcli validate-tree --no-net "$unpacked"
for page in "$unpacked"/usr/share/man/man1/*.gz; do
    quietly env LC_ALL=C.UTF-8 man --warnings -l "$page"
done

echo "== package: plays"
stand_in_for_dependencies
play clip.mp4 "$unpacked/usr/bin/talvor-player"
class=$(sed -n 's/^StartupWMClass=//p' "$unpacked"/usr/share/applications/*.desktop)
grep -q "^WM_CLASS.*\"$class\"$" "$work/log.txt" ||
    fail "the desktop entry names the class $class: $(grep WM_CLASS "$work/log.txt")"

echo "== package: reads without a display"
"$unpacked/usr/bin/talvor-telemetry" --info "$work/clip.mp4" >"$work/said.txt" 2>&1 &&
    fail "talvor-telemetry finds telemetry where there is none"
grep -q '^  Container *MP4$' "$work/said.txt" ||
    fail "talvor-telemetry does not read a recording: $(cat "$work/said.txt")"

echo "== installation"
install_and_uninstall "$prefix" play
install_over_older "$work/older"
DESTDIR=$work/stage
export DESTDIR
install_and_uninstall /opt/talvor
