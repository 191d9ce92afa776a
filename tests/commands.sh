#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# What run.sh, test.sh and .ci/run say before they install or build anything:
#   tests/commands.sh
# They are tried as copies in folders of our own, where the installer only notes that it was called.
set -eu

checkout=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd -P)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
unset SUDO_UID

new_checkout() { # NAME: a copy of the commands in the folder $work/NAME
    folder=$work/$1
    mkdir -p "$folder/tools" "$folder/.ci"
    cp "$checkout/run.sh" "$checkout/test.sh" "$folder"
    cp "$checkout/.ci/run" "$folder/.ci"
    cp "$checkout/tools/checkout.sh" "$folder/tools"
    printf '#!/bin/sh\ntouch "%s/installs"\nexit 9\n' "$work" >"$folder/tools/install-packages.sh"
    chmod +x "$folder/tools/install-packages.sh"
}

# Runs a command of the copy, which must end with the status, say a text that matches the pattern,
# and have called the installer or not.
expect() { # STATUS installs|stops PATTERN COMMAND [ARGUMENT...]
    wanted="$1 $2"
    pattern=$3
    shift 3
    status=0
    said=$("$@" 2>&1) || status=$?
    reached=stops
    [ ! -e "$work/installs" ] || reached=installs
    rm -f "$work/installs"
    if [ "$status $reached" != "$wanted" ] || ! echo "$said" | grep -qe "$pattern"; then
        echo "FAIL: $*: $status $reached instead of $wanted, '$pattern': $said" >&2
        failures=$((failures + 1))
    fi
}

new_checkout "talvor (1) & o'brien \$b [1] 100% ü"
for name in run.sh test.sh; do
    expect 0 stops "^Installs what is missing" "$folder/$name" --help
    expect 0 stops "^Installs what is missing" "$folder/$name" -h
    expect 1 stops "^$name: run it without sudo" env SUDO_UID=1000 "$folder/$name"
    expect 9 installs "" env SUDO_UID=0 "$folder/$name"
done
expect 1 stops "there is no option -x" "$folder/run.sh" a.mp4 -x
expect 0 stops "^Installs what is missing" "$folder/run.sh" a.mp4 --help
expect 9 installs "" "$folder/run.sh" a.mp4 -- -x.mp4
expect 1 stops "no preset release: dev, asan and fuzz" "$folder/test.sh" dev release
expect 9 installs "" "$folder/test.sh" fuzz
expect 9 installs "" "$folder/.ci/run"

for name in 'a;b' 'a#b' 'a\b' 'a"b' 'a[b' 'a]b' 'a<b' 'a>b' 'a
b'; do
    new_checkout "$name"
    for command in run.sh test.sh .ci/run; do
        expect 1 stops "the folder's name must not hold" "$folder/$command"
    done
done

# The format check passes only where it has seen sources.
new_checkout formats
printf '#!/bin/sh\n' >"$folder/tools/install-packages.sh"
printf '#!/bin/sh\nexit 7\n' >"$folder/test.sh"
GIT_CEILING_DIRECTORIES=$work
export GIT_CEILING_DIRECTORIES
expect 1 stops "git cannot list the sources" "$folder/.ci/run"
git init -q "$folder"
expect 1 stops "no source whose format" "$folder/.ci/run"
echo 'int  odd ;' >"$folder/two words.cpp"
git -C "$folder" add .
expect 1 stops "two words.cpp.*should be clang-formatted" "$folder/.ci/run"
echo 'int odd;' >"$folder/two words.cpp"
expect 7 stops "== format" "$folder/.ci/run"

if [ "$(id -u)" -eq 0 ]; then # somebody else's build, which only root can set up
    new_checkout foreign
    mkdir "$folder/build"
    touch "$folder/build/log.txt"
    chmod -R a+rX "$work"
    expect 1 stops "you may not write to .*/build: as its owner (root), delete" \
        setpriv --reuid=65534 --clear-groups "$folder/run.sh"

    new_checkout installed # one's own build, from which root has installed
    mkdir -p "$folder/build/release"
    chown -R 65534 "$folder"
    touch "$folder/build/release/install_manifest.txt" "$folder/build/release/install_folders.txt"
    printf '#!/bin/sh\nexit 9\n' >"$folder/tools/install-packages.sh"
    chmod -R a+rX "$work"
    expect 9 stops "" setpriv --reuid=65534 --clear-groups "$folder/run.sh"
fi

[ $failures -eq 0 ] || exit 1
echo "All commands answered as they should."
