# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=sh disable=SC2154
#
# What the commands of the checkout share; they set "root", the folder of the checkout, and read this.

fail() {
    echo "$(basename -- "$0"): $*" >&2
    exit 1
}

# Refuses, before anything is installed or built, what could only fail obscurely later.
check_checkout() {
    unpaired=$(printf '%s' "$root" | sed 's/\[[^][]*\]//g')
    case $unpaired in
    *[\;\#\<\>\\\"\[\]]* | *'
'*)
        fail "the folder's name must not hold any of ; # < > \\ \", an open bracket or a line break," \
            "which the tools that build the player cannot handle: rename $root"
        ;;
    esac
    [ "${SUDO_UID:-0}" -eq 0 ] ||
        fail "run it without sudo, as yourself: it asks for sudo only to install packages, and what" \
            "root builds here your own next run could not change"
    if [ ! -d "$root/build" ]; then
        [ -w "$root" ] || fail "you may not write to $root, where the build folder would be made"
        return
    fi
    # An installation for everybody notes as root what it wrote; no build touches that.
    foreign=$(find "$root/build" ! -type l ! -user "$(id -u)" ! -writable \
        ! -name 'install_manifest*.txt' ! -name install_folders.txt -print -quit 2>&1)
    [ -z "$foreign" ] ||
        fail "this is somebody else's build, in which you may not write to $foreign: as its owner" \
            "($(stat -c %U "$root/build")), delete $root/build"
}

# A cache that was moved or copied here with the folder around it, or that cannot be read, would
# build the sources of another folder, or nothing.
is_configured() { # PRESET
    build=$root/build/$1
    [ -f "$build/build.ninja" ] && cmake -N "$build" >/dev/null 2>&1 || return 1
    home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$build/CMakeCache.txt")
    [ "$(cd -- "$home" 2>/dev/null && pwd -P)" = "$root" ]
}

# Shows what cmake said only if it failed. Run again over an unchanged checkout, it takes a second.
configure() { # PRESET [ARGUMENT...]
    log=$root/build/log.txt
    mkdir -p "$root/build"
    fresh=--fresh
    is_configured "$1" && fresh=""
    # shellcheck disable=SC2086 # no word at all when empty
    cmake $fresh -S "$root" --preset "$@" >"$log" 2>&1 ||
        { cat "$log" >&2; fail "configuring $1 failed"; }
}
