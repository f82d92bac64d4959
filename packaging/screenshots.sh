#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# screenshots.sh STUDIO PROJECT FOLDER: opens a copy of PROJECT on a virtual display, goes through the recipe branch by
# keyboard in German and in English, and leaves a picture of each stop in FOLDER. Fails when a window does not come or a
# step shows nothing new. The user's projects and settings are not touched.
set -euo pipefail

readonly studio=$1 project=$2 pictures=$3
readonly patience=120 # seconds for a window, on a machine that is busy
mkdir -p build "$pictures"
work=$(mktemp -d "$PWD/build/tour.XXXXXX")
readonly work
started=()

fail() { printf 'screenshots: %s\n' "$*" >&2; exit 1; }

# Ends what this script started, the last first.
finish() {
    local i
    for ((i = ${#started[@]} - 1; i >= 0; i--)); do
        kill "${started[i]}" 2>/dev/null || true
        wait "${started[i]}" 2>/dev/null || true
    done
    rm -rf "$work"
}
trap finish EXIT

# until_true SECONDS COMMAND...
until_true() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.1
    done
}

start_display() {
    Xvfb -displayfd 6 -screen 0 1280x800x24 -nolisten tcp 6>"$work/display" 2>"$work/xvfb.log" &
    started+=($!)
    until_true "$patience" test -s "$work/display" || { cat "$work/xvfb.log" >&2; fail "Xvfb did not start"; }
    export DISPLAY=:$(<"$work/display") QT_QPA_PLATFORM=xcb
    openbox --sm-disable >"$work/openbox.log" 2>&1 &
    started+=($!)
    until_true "$patience" xdotool get_num_desktops >/dev/null 2>&1 || { cat "$work/openbox.log" >&2; fail "openbox did not start"; }
}

# The studio's window with a project, in `window`; empty when there is none.
find_window() {
    window=$(xdotool search --onlyvisible --name '^HelvixStudio - ' 2>/dev/null | head -n 1 || true)
    [ -n "$window" ]
}

window_or_end() { find_window || ! kill -0 "$studio_process" 2>/dev/null; }

# What the area of documents shows, as a checksum.
documents_of() { /usr/bin/convert "$1" -crop 840x680+400+50 +repage -format '%#' info:; }

# Waits until the picture of the screen stays the same, then keeps it as NAME. What the editor shows must be new.
take_picture() {
    local last=none now end=$((SECONDS + 20))
    kill -0 "$studio_process" 2>/dev/null || { cat "$work/studio.log" >&2; fail "the studio ended before the picture $1"; }
    while :; do
        /usr/bin/import -silent -window root "$work/now.png"
        now=$(/usr/bin/identify -format '%#' "$work/now.png")
        [ "$now" != "$last" ] && [ "$SECONDS" -lt "$end" ] || break
        last=$now
        sleep 0.4
    done
    mv "$work/now.png" "$pictures/$1.png"
    echo "$pictures/$1.png"
    now=$(documents_of "$pictures/$1.png")
    for last in "${shown[@]}"; do
        [ "$last" != "$now" ] || fail "the editor shows nothing new in $1"
    done
    shown+=("$now")
}

press() {
    xdotool key --clearmodifiers "$@"
    sleep 0.5
}

# tour LANGUAGE
tour() {
    local folder=$work/$1
    mkdir -p "$folder/config" "$folder/project" "$folder/run"
    chmod 700 "$folder/run"
    cp "$project" "$folder/project/"
    XDG_RUNTIME_DIR=$folder/run "$studio" --config "$folder/config" --lang "$1" \
        "$folder/project/$(basename "$project")" >"$work/studio.log" 2>&1 &
    studio_process=$!
    started+=("$studio_process")
    until_true "$patience" window_or_end || true
    [ -n "$window" ] || { cat "$work/studio.log" >&2; fail "the studio's window did not come"; }
    xdotool windowactivate --sync "$window" 2>/dev/null || true
    press Home Down
    take_picture "$1-1-rezepte"
    press Right Down
    take_picture "$1-2-rezept"
    press Right Down
    take_picture "$1-3-unterrezepte"
    kill "$studio_process"
    wait "$studio_process" 2>/dev/null || true
}

shown=()
start_display
tour de
tour en
echo "The pictures are in $(readlink -f "$pictures")"
