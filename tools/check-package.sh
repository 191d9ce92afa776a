#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs the player's package into a bare Debian 12 that it makes, as its user would: with apt, and
# with nothing there but what the package brings. There an ordinary user plays a recording on a
# virtual display. Then the package is upgraded, removed and purged, and what is left is looked at:
#   tools/check-package.sh PACKAGE.deb [PICTURE]
# PICTURE (package.png unless told otherwise) shows the player playing. Must be run as root, and
# takes the packages from where this machine's apt does. What watches the player (the display, its
# window manager, the camera) stays outside, so that it cannot stand in for a missing dependency.
set -eu

tools=$(cd "$(dirname "$0")" && pwd)
home=/home/driver
title="Talvor Player V1.6 20200828"

fail() {
    echo "check-package: $*" >&2
    exit 1
}

# Mounts and processes end with the namespaces that they are in; only then files are removed.
check_in_namespaces() { # PACKAGE PICTURE
    [ -r "${1:-}" ] || fail "usage: check-package.sh PACKAGE.deb [PICTURE]"
    [ "$(id -u)" -eq 0 ] || fail "run it as root: it makes a system of its own"
    "$tools/install-packages.sh"
    work=$(mktemp -d)
    trap 'rm -rf --one-file-system "$work"' EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    unshare --mount --propagation private --pid --fork --kill-child --mount-proc \
        "$0" --check "$work" "$(realpath "$1")" "$(realpath "${2:-package.png}")"
}

# The web engine's sandbox needs namespaces of the user's own, which the kernel gives to nobody whose
# root is not that of his mounts: so the bare system becomes the root of all there is.
run_as_driver() { # COMMAND [ARGUMENT...]
    # shellcheck disable=SC2016 # the words are those of the inner shell
    exec unshare --mount --propagation private sh -ec '
        mount --rbind "$1" "$1"
        cd "$1"
        shift
        pivot_root . mnt
        umount -l /mnt
        cd /home/driver
        exec setpriv --reuid driver --regid driver --init-groups "$@"' driver \
        "$bare" env -i HOME=$home PATH=/usr/bin:/bin LANG=C.UTF-8 DISPLAY="${DISPLAY:-}" \
        ${TALVOR_NO_SANDBOX:+QTWEBENGINE_DISABLE_SANDBOX=1} \
        QTWEBENGINE_CHROMIUM_FLAGS="${QTWEBENGINE_CHROMIUM_FLAGS:-}" "$@"
}

quietly() { # runs a command; shows what it said only if it failed
    "$@" >"$work/log.txt" 2>&1 || { cat "$work/log.txt" >&2; fail "failed: $*"; }
}

inside() { # COMMAND...: as the bare system's root
    quietly chroot "$bare" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}

make_bare_system() {
    apt-get indextargets --format "deb \$(REPO_URI) \$(RELEASE) \$(COMPONENT)" \
        "Created-By: Packages" "Origin: Debian" | sort -u >"$work/sources.list"
    [ -s "$work/sources.list" ] || fail "this machine's apt knows no Debian; run apt-get update"
    quietly mmdebstrap --mode=root --variant=minbase bookworm "$bare" "$work/sources.list"
    chmod 755 "$work" # for the user in there
    cp /etc/resolv.conf "$bare/etc/resolv.conf"
    printf '#!/bin/sh\nexit 101\n' >"$bare/usr/sbin/policy-rc.d" # no services of the packages
    chmod 755 "$bare/usr/sbin/policy-rc.d"
    mount -t proc proc "$bare/proc"
    mount --rbind /dev "$bare/dev"
    mount -t tmpfs -o mode=1777 tmpfs "$bare/tmp"
    mkdir -p /tmp/.X11-unix "$bare/tmp/.X11-unix" "$bare/tmp/package"
    mount --bind /tmp/.X11-unix "$bare/tmp/.X11-unix"
    cp "$package" "$bare/tmp/package"
    inside useradd --create-home driver
    inside apt-get update
}

list_files() { # FILE: without what lies in memory, and without the users' files
    find "$bare" -xdev -mindepth 1 \( -path "$bare/tmp" -o -path "$bare/run" \
        -o -path "$bare/home" \) -prune -o -printf '/%P\n' | LC_ALL=C sort >"$1"
}

list_packages() { # FILE
    # shellcheck disable=SC2016 # dpkg's own words
    chroot "$bare" dpkg-query -W -f '${Package}\n' | LC_ALL=C sort >"$1"
}

choose_sandbox() {
    TALVOR_NO_SANDBOX=""
    quietly "$0" --as-driver "$bare" true
    if "$0" --as-driver "$bare" unshare --user --map-root-user true 2>/dev/null; then
        echo "The web engine runs in its sandbox."
    else
        TALVOR_NO_SANDBOX=1
        echo "This machine gives users no namespaces: the web engine runs WITHOUT its sandbox."
    fi
    export TALVOR_NO_SANDBOX
}

play() { # RECORDING
    quietly "$tools/with-display.sh" "$tools/watch-player.sh" "$bare$home/$1" \
        "$bare$home/Pictures/$title" "$picture" "$0" --as-driver "$bare" talvor-player "$home/$1"
    echo "Plays $1, and makes a screenshot of it: $picture"
}

sum_up_users_files() { # FILE: settings and pictures
    (cd "$bare$home" && find .local/share -name configuration.ini -exec sha256sum {} + &&
        find Pictures -type f -exec sha256sum {} +) | LC_ALL=C sort >"$1"
}

keeps_users_files() { # WHAT
    sum_up_users_files "$work/users-now.txt"
    cmp -s "$work/users.txt" "$work/users-now.txt" || fail "$1 changed the user's files"
    echo "$1: the user's settings and pictures are as they were."
}

check_package() {
    bare=$work/root
    deb=/tmp/package/$(basename "$package")

    echo "== A bare Debian 12"
    make_bare_system
    list_packages "$work/packages-bare.txt"
    list_files "$work/files-bare.txt"
    echo "$(wc -l <"$work/packages-bare.txt") packages"

    echo "== Installation, without what is only recommended"
    inside apt-get install -y --no-install-recommends "$deb"
    list_packages "$work/packages.txt"
    echo "$(wc -l <"$work/packages.txt") packages"
    list_files "$work/files-installed.txt"
    choose_sandbox
    play first.mp4
    play second.avi
    sum_up_users_files "$work/users.txt"
    [ "$(grep -c Pictures "$work/users.txt")" -eq 2 ] || fail "not two screenshots"

    echo "== Upgrade"
    inside apt-get install -y --no-install-recommends --reinstall "$deb"
    keeps_users_files "Upgrade"
    play third.mp4
    sum_up_users_files "$work/users.txt"

    echo "== Removal"
    chroot "$bare" dpkg -L talvor-player | grep -v '^/\.$' | LC_ALL=C sort >"$work/own-files.txt"
    inside apt-get purge -y talvor-player
    keeps_users_files "Removal"
    list_files "$work/files-purged.txt"
    # What was there before the package was: with the folders that it shares with other packages.
    LC_ALL=C comm -23 "$work/files-purged.txt" "$work/files-bare.txt" >"$work/new.txt"
    ! grep -i -e talvor -e quellfern "$work/new.txt" || fail "the removal leaves files"
    LC_ALL=C comm -23 "$work/files-purged.txt" "$work/files-installed.txt" >"$work/late.txt"
    sed 's/^/late: /' "$work/late.txt"
    [ ! -s "$work/late.txt" ] || fail "files have come since the installation"
    LC_ALL=C comm -12 "$work/own-files.txt" "$work/files-purged.txt" | while read -r file; do
        [ -d "$bare$file" ] || fail "the removal leaves $file"
    done
    inside apt-get purge -y --auto-remove
    list_packages "$work/packages-end.txt"
    inside apt-get clean
    diff "$work/packages-bare.txt" "$work/packages-end.txt" || fail "packages are left"
    list_files "$work/files-end.txt"
    echo "Left by the packages that it depended on, or by the package manager:"
    LC_ALL=C comm -13 "$work/files-bare.txt" "$work/files-end.txt" | sed 's/^/    /'
    echo "Left in the user's home:"
    (cd "$bare$home" && find . -mindepth 1 -path './.cache/*/*' -prune -o -path '*/QtWebEngine/*' \
        -prune -o -type f -print -o -empty -print) | LC_ALL=C sort | sed 's/^\./    ~/'
}

case ${1:-} in
--check)
    work=$2
    package=$3
    picture=$4
    check_package
    ;;
--as-driver)
    bare=$2
    shift 2
    run_as_driver "$@"
    ;;
*) check_in_namespaces "$@" ;;
esac
