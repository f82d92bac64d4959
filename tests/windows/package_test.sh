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

# What programs enter into the registry: their classes, how they are removed, and whatever names ours. The rest is Wine's, which
# notes fonts and devices as it meets them.
entries() {
    awk '/^\[/ { kept = /^\[Software\\\\(Classes|Microsoft\\\\Windows\\\\CurrentVersion\\\\(Uninstall|Run|App Paths))/ }
         (kept || /HelvixStudio|HXRecipe|HXProject|Tarnwell/) && !/PendingFileRename/' "$WINEPREFIX"/{system,user}.reg |
        sed -E 's/^(\[.*\]) [0-9]+$/\1/; /^#time=/d; /^$/d'
}

# state NAME: what registry and disks hold. What an uninstaller has run from goes when Windows starts the next time.
state() {
    "$server" -w
    entries >"$work/$1.registry"
    (cd "$WINEPREFIX/drive_c" && find . \( -path ./windows -o -name Temp \) -prune -o -printf '%P %s\n' | sort) >"$work/$1.disk"
}

says_version() { [ "$(wine "$1" --version | tr -d '\r')" = "hxrecipe $version" ] || fail "$1 does not tell its version"; }

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
    grep -qF '[Software\\Classes\\HXRecipeEditor.Connect' "$work/between.registry" || fail "the add-in is not registered"
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
# Keys that every user of Windows has.
for key in Classes 'Classes\CLSID' 'Classes\TypeLib' 'Classes\Interface' 'Microsoft\Windows\CurrentVersion\Uninstall'; do
    wine reg add "HKCU\\Software\\$key" /f
done
unzip -q "$archive" -d "$work/a folder"
says_version "$work/a folder/$(basename "$archive" .zip)/hxrecipe.exe"
installs_and_removes /CurrentUser "$WINEPREFIX/drive_c/users/$(id -un)/AppData/Local/Programs/HelvixStudio"
installs_and_removes /AllUsers "$WINEPREFIX/drive_c/Program Files/HelvixStudio"
