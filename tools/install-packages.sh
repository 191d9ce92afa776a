#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs the Debian packages of packaging/debian-packages.txt that are missing.
# Works offline, and changes nothing, when all of them are there.
set -eu

list="$(dirname -- "$0")/../packaging/debian-packages.txt"

fail() {
    echo "install-packages: $*" >&2
    exit 1
}

command -v dpkg-query >/dev/null ||
    fail "this is not a Debian system; install the equivalents of $list by hand"

wanted=$(sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$list")
# shellcheck disable=SC2086 # one word a package
installed=$(dpkg-query -W -f '${Package}=${db:Status-Status}\n' $wanted 2>/dev/null || true)

missing=""
for package in $wanted; do
    echo "$installed" | grep -qx "$package=installed" || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

as_root=""
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null ||
        fail "packages are missing; as root, or as a user who may use sudo, run:" \
            "apt-get install --no-install-recommends$missing"
    as_root="sudo"
fi

# What apt itself foresees: "Need to get 25.6 MB of archives. After this operation, ..."
foreseen() {
    # shellcheck disable=SC2086
    LC_ALL=C apt-get install --print-uris --no-install-recommends $missing 2>/dev/null |
        sed -n -e 's/.* \([0-9]*\) newly installed.*/\1 packages./p' -e '/^Need to get/p' \
            -e '/^After this operation/p' | tr '\n' ' '
}

echo "Missing packages are installed${as_root:+, with sudo}:$missing"
$as_root apt-get update -q || fail "apt-get update failed; is there a network?"
echo "To be installed, with all that they need: $(foreseen)"
# shellcheck disable=SC2086
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $missing ||
    fail "apt-get could not install:$missing"
