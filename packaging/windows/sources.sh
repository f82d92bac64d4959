# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Read by the scripts that build libraries for Windows from Debian's source packages: what they build in, in a folder of theirs.

here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
script=$(readlink -f "$0")
readonly here script

# What made the folder's contents: the script and this file.
makers() { cat "$script" "$here/sources.sh"; }

# begin FOLDER [32]: ends the script when it has been here before, unchanged.
begin() {
    compiler=x86_64-w64-mingw32
    toolchain=$here/../../cmake/windows.cmake
    if [ "${2:-}" = 32 ]; then
        compiler=i686-w64-mingw32
        toolchain=$here/../../cmake/windows-32.cmake
    fi
    readonly compiler toolchain
    mkdir -p "$1"
    folder=$(cd "$1" && pwd)
    prefix=$folder/prefix
    readonly folder prefix
    if makers | cmp -s - "$folder/made-by"; then exit 0; fi
    rm -rf "$folder/sources" "$prefix" "$folder/made-by"
    mkdir -p "$folder"/{sources,lists/partial,entries} "$prefix"/{include,lib,share/cmake,share/licences}
}

end() {
    rm -rf "$folder"/{sources,lists,entries}
    makers >"$folder/made-by"
}

# The machine's own entries, asked for sources, beside what apt has already read.
source_entries() {
    local list
    for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ ! -e "$list" ] || sed -n 's/^deb /deb-src /p' "$list" >>"$folder/entries/debian.list"
    done
    for list in /etc/apt/sources.list.d/*.sources; do
        [ ! -e "$list" ] || sed 's/^Types:.*/Types: deb-src/' "$list" >"$folder/entries/${list##*/}"
    done
}

apt() {
    apt-get -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$folder/entries" -o Dir::State::Lists="$folder/lists" \
        -o APT::Sandbox::User="$(id -un)" -o Acquire::Retries=3 -o Acquire::Languages=none -qq "$@"
}

# sources PACKAGE...: each one's sources end up in a folder of its name, the terms to pass them on under in the prefix.
sources() {
    local package
    source_entries
    apt update
    cd "$folder/sources"
    for package in "$@"; do
        apt source --download-only "$package"
        dpkg-source --no-check -x "${package}"_*.dsc "$package" >"$package.log"
        cp "$package/debian/copyright" "$prefix/share/licences/$package.txt"
    done
}

# built NAME [OPTION...]: what comes with CMake.
built() {
    local source=$folder/sources/$1
    shift
    cmake -S "$source" -B "$source-build" -G Ninja --log-level=ERROR -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_BUILD_TYPE=Release -DCMAKE_C_COMPILER_LAUNCHER=ccache \
        -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@" >"$source-build.log" 2>&1 || { tail -n 40 "$source-build.log" >&2; return 1; }
    cmake --build "$source-build" --target install >>"$source-build.log" 2>&1 || { tail -n 40 "$source-build.log" >&2; return 1; }
}
