#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs what is missing, builds the player with its tests and runs every test:
#   ./test.sh [PRESET...]       dev (the default), asan for the sanitizers, fuzz for the fuzzers
set -eu

root=$(cd "$(dirname "$0")" && pwd)
[ $# -gt 0 ] || set -- dev

fail() {
    echo "test.sh: $*" >&2
    exit 1
}

"$root/tools/install-packages.sh"
cd "$root"
for preset in "$@"; do
    echo "== $preset: build"
    mkdir -p build
    cmake --preset "$preset" >build/log.txt 2>&1 ||
        { cat build/log.txt >&2; fail "configuring $preset failed"; }
    cmake --build --preset "$preset" || fail "building $preset failed"
    echo "== $preset: tests"
    ctest --preset "$preset" --no-tests=error || fail "tests of $preset failed"
done
