#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# package_test.sh BUILD: unpacks the archive and runs what it holds; installs and removes the studio, for one user and for all,
# and compares registry and disks before and after. On a Windows of its own.
set -euo pipefail
sources=$(readlink -f "$(dirname "$(readlink -f "$0")")/../..")
build=$1
work=$build/package-test
export WINEPREFIX=$build/wine-package WINEPATH=
installer=$(echo "$build"/package/HelvixStudio-*-win64.exe)
archive=${installer%.exe}.zip
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:.*=//p' "$build/CMakeCache.txt")
server=$(command -v wineserver /usr/lib/wine/wineserver64 /usr/lib/wine/wineserver | head -1)
readonly sources build work installer archive version server

fail() { printf 'package_test: %s\n' "$*" >&2; exit 1; }

wine() { "$sources/packaging/windows/wine" "$@"; }

# Runs it, and waits for what it starts.
run() {
    wine "$@" || fail "$* ended with $?"
    "$server" -w
}

# The registry, a line a value behind its key, without the times of its changes.
entries() {
    sed -E 's/^(\[.*\]) [0-9]+$/\1/; /^#/d; /^$/d' "$WINEPREFIX"/{system,user}.reg | awk '/^\[/ { key = $0 } { print key, $0 }' | sort
}

# state NAME: what registry and disks hold. What an uninstaller has run from goes when Windows starts the next time.
state() {
    "$server" -w
    entries >"$work/$1.registry"
    (cd "$WINEPREFIX/drive_c" && find . -iname temp -prune -o -printf '%P %s\n' | sort) >"$work/$1.disk"
}

says_version() { [ "$(wine "$1" --version | tr -d '\r')" = "hxrecipe $version" ] || fail "$1 does not tell its version"; }

# In a host that has nothing of the studio's beside itself. What is registered for one user, Wine does not find.
creates_add_ins() {
    local said
    said=$(wine cscript //nologo "Z:${sources//\//\\}\\tests\\windows\\create.js" | tr -d '\r') || true
    [ "$said" = created ] || fail "the add-ins cannot be created: $said"
}

# installs_and_removes /CurrentUser|/AllUsers FOLDER
installs_and_removes() {
    local folder=$2
    state before
    run "$installer" "$1" /S
    says_version "$folder/hxrecipe.exe"
    [ -e "$folder/HelvixStudio.exe" ] && [ -e "$folder/platforms/qwindows.dll" ] || fail "$folder lacks the studio"
    state between
    grep -qF 'HelvixStudio.exe\" \"%1\"' "$work/between.registry" || fail "projects do not open in the studio"
    grep -q 'HelvixStudio.lnk' "$work/between.disk" || fail "the studio is not in the start menu"
    for class in HXRecipeEditor HXProjectReport; do
        grep -qF "[Software\\\\Classes\\\\$class.Connect" "$work/between.registry" || fail "$class is not registered"
    done
    if [ "$1" = /AllUsers ]; then creates_add_ins; fi
    echo mine >"$folder/mine.txt"
    run "$folder/uninstall.exe" "$1" /S
    [ "$(cat "$folder/mine.txt")" = mine ] || fail "the user's file is gone"
    [ "$(ls "$folder")" = mine.txt ] || fail "$folder still holds $(ls "$folder")"
    rm "$folder/mine.txt"
    rmdir "$folder"
    state after
    diff "$work/before.registry" "$work/after.registry" || fail "the registry differs after $1"
    diff "$work/before.disk" "$work/after.disk" || fail "the disk differs after $1"
}

rm -rf "$work" "$WINEPREFIX"
mkdir -p "$work"
# Keys and a folder that every user of Windows has.
for key in Classes 'Classes\CLSID' 'Classes\TypeLib' 'Classes\Interface' 'Microsoft\Windows\CurrentVersion\Uninstall'; do
    wine reg add "HKCU\\Software\\$key" /f
done
mkdir -p "$WINEPREFIX/drive_c/users/$(id -un)/AppData/Local/Programs"
unzip -q "$archive" -d "$work/a folder"
says_version "$work/a folder/$(basename "$archive" .zip)/hxrecipe.exe"
installs_and_removes /CurrentUser "$WINEPREFIX/drive_c/users/$(id -un)/AppData/Local/Programs/HelvixStudio"
installs_and_removes /AllUsers "$WINEPREFIX/drive_c/Program Files/HelvixStudio"
