#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
set -eu

usage() {
    cat <<'END'
Installs what is missing, builds the player with its tests and runs every test:
  ./test.sh [PRESET...]
Presets: dev (the default), asan for the sanitizers, fuzz for the fuzzers. Packages are installed
as root, or through sudo.
END
}

root=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd -P)
# shellcheck source=tools/checkout.sh
. "$root/tools/checkout.sh"

[ $# -gt 0 ] || set -- dev
for preset in "$@"; do
    case $preset in
    -h | --help)
        usage
        exit
        ;;
    dev | asan | fuzz) ;;
    *) fail "there is no preset $preset: dev, asan and fuzz are what can be tested" ;;
    esac
done

check_checkout
"$root/tools/install-packages.sh"
cd "$root"
for preset in "$@"; do
    echo "== $preset: build"
    configure "$preset"
    cmake --build --preset "$preset" || fail "building $preset failed"
    echo "== $preset: tests"
    ctest --preset "$preset" --no-tests=error || fail "tests of $preset failed"
done
