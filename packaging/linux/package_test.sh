#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# package_test.sh FOLDER: looks at the Debian package in it, installs it into an empty root with the libraries of this
# machine, uses what is installed there and removes it; nothing is left. The archive is run from another folder.
set -euo pipefail
package=$(ls "$1"/helvixstudio_*.deb)
archive=$(ls "$1"/helvixstudio-*.tar.xz)
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
fail() { echo "package_test: $*" >&2; exit 1; }

lintian --fail-on error "$package"

# A root that dpkg knows, without anything in it. Dependencies are this machine's.
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates" "$root/home"
touch "$root/var/lib/dpkg/status"
list() { (cd "$root" && find . -path ./var/lib/dpkg -prune -o -path ./home -prune -o -print | sort); }
before=$(list)
use_dpkg() { dpkg --root="$root" --force-depends --force-not-root --force-script-chrootless --log=/dev/null "$@" >/dev/null; }
use_dpkg -i "$package"

export HOME=$root/home XDG_DATA_DIRS=$root/usr/share XDG_CONFIG_HOME=$root/home/.config XDG_DATA_HOME=$root/home/.local/share
export XDG_CACHE_HOME=$root/home/.cache PATH=$root/usr/bin:$PATH QT_QPA_PLATFORM=offscreen
version=$(dpkg-deb -f "$package" Version)
[[ $(hxrecipe --version) == "hxrecipe $version"* ]] || fail "hxrecipe is not the package's"
[[ $(HelvixStudio --version) == "HelvixStudio $version"* ]] || fail "HelvixStudio is not the package's"
sample=$HOME/Getraenkelinie.hxs
cp "$root/usr/share/helvixstudio/samples/Getraenkelinie.hxs" "$sample"
hxrecipe list "$sample" | grep -q "Apfelsaft" || fail "the sample has no recipes"
hxrecipe diff "$sample" "$root/usr/share/helvixstudio/samples/Getraenkelinie-Jet.hxs" || fail "the Jet sample is another"

# The desktop knows the project by its name and by its beginning, and what opens it.
cp -r "$root/usr/share/mime" "$HOME/mime-source"
update-mime-database "$root/usr/share/mime"
mv "$sample" "$HOME/Anlage"
type=$(gio info -a standard::content-type "$HOME/Anlage" | sed -n 's/.*content-type: //p')
[ "$type" = application/x-helvix-project ] || fail "the desktop takes a project for $type"
mv "$HOME/Anlage" "$sample"
update-desktop-database "$root/usr/share/applications"
grep -q '^application/x-helvix-project=org.helvixstudio.HelvixStudio.desktop' "$root/usr/share/applications/mimeinfo.cache" \
    || fail "nothing opens a project"
command=$(sed -n 's/^Exec=//p' "$root/usr/share/applications/org.helvixstudio.HelvixStudio.desktop")
${command//%f/$sample} &
studio=$!
# It has opened the project when it stands in the list of projects.
for ((i = 0; i < 600; ++i)); do
    grep -qs "Getraenkelinie" "$XDG_CONFIG_HOME/HelvixStudio/studio.ini" && break
    kill -0 "$studio" 2>/dev/null || fail "the studio has ended"
    sleep 0.1
done
grep -qs "Getraenkelinie" "$XDG_CONFIG_HOME/HelvixStudio/studio.ini" || fail "the studio has not opened the sample"
kill "$studio"
wait "$studio" 2>/dev/null || true

# What the desktop has made of the package's files goes as it does on a whole system.
rm -rf "$root/usr/share/mime" "$root/usr/share/applications/mimeinfo.cache"
mkdir -p "$root/usr/share/mime"
cp -r "$HOME/mime-source/." "$root/usr/share/mime"
use_dpkg --purge helvixstudio
after=$(list)
[ "$before" = "$after" ] || fail "left behind: $(diff <(echo "$before") <(echo "$after"))"

tar -xJf "$archive" -C "$root/home"
tree=$(ls -d "$root/home"/helvixstudio-*)
[[ $("$tree/bin/hxrecipe" --version) == "hxrecipe $version"* ]] || fail "the archive's hxrecipe does not run"
[[ $("$tree/bin/HelvixStudio" --version) == "HelvixStudio $version"* ]] || fail "the archive's studio does not run"
[ -f "$tree/libexec/helvixstudio/help/de/Rezeptsystem.chm" ] || fail "the archive's studio finds no help"
echo "The package is sound."
