#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# completions_test.sh PROGRAM: what bash completes of hxrecipe is what it takes.
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$1" "$folder"
# shellcheck disable=SC1091
source "$folder/hxrecipe"

completed() {
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    COMPREPLY=()
    _hxrecipe
    echo "${COMPREPLY[*]}"
}
expect() {
    local wanted=$1 given
    shift
    given=$(completed "$@")
    [ "$given" = "$wanted" ] || { echo "$*: \"$given\" is completed, not \"$wanted\"" >&2; exit 1; }
}
expect "export" hxrecipe ex
expect "show" hxrecipe sh
expect "--json" hxrecipe list --j
expect "--thorough" hxrecipe check Any.hxs --th
expect "import" hxrecipe variables im
expect "--encoding" hxrecipe variables import --en
expect "" hxrecipe list Any
grep -q '^#compdef hxrecipe$' "$folder/_hxrecipe"
grep -q "__fish_seen_subcommand_from variables; and __fish_seen_subcommand_from import' -l dry-run" "$folder/hxrecipe.fish"
if command -v zsh >/dev/null; then zsh -n "$folder/_hxrecipe"; fi
if command -v fish >/dev/null; then fish -n "$folder/hxrecipe.fish"; fi
