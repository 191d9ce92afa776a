#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the player's Debian package, and prints its path in the last line:
#   tools/make-package.sh [-D VARIABLE=VALUE]...
# A packager sets TALVOR_MAINTAINER to "NAME <ADDRESS>" and TALVOR_WEB_ADDRESS to where the player is
# at home in the web; both remain until they are set again.
set -eu

root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd -P)
# shellcheck source=tools/checkout.sh
. "$root/tools/checkout.sh"

check_checkout
"$root/tools/install-packages.sh"
cd "$root"
umask 022 # the folders of the package are for everybody to read
# Links that the package carries lead to what the packages of the system bring.
configure release -D FFMPEG_EXECUTABLE=/usr/bin/ffmpeg \
    -D LEAFLET_DIR=/usr/share/javascript/leaflet "$@"
cmake --build --preset release --target talvor-player talvor-telemetry papers
rm -f build/package/*.deb
cpack --preset deb >build/log.txt 2>&1 ||
    { cat build/log.txt >&2; fail "making the package failed"; }
! grep -q '^TALVOR_MAINTAINER:.*\.example>$' build/release/CMakeCache.txt ||
    echo "make-package: nobody can be written to about this package; set TALVOR_MAINTAINER" >&2
ls "$root"/build/package/*.deb
