# SPDX-License-Identifier: MIT

# Compiles for 64-bit Windows with Debian's cross compiler. The libraries stand in build/windows-libraries, where
# packaging/windows/libraries puts them.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(compiler x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${compiler}-gcc-posix)
set(CMAKE_CXX_COMPILER ${compiler}-g++-posix)
set(CMAKE_RC_COMPILER ${compiler}-windres)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH sources)
set(CMAKE_FIND_ROOT_PATH ${sources}/build/windows-libraries/prefix /usr/${compiler})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Windows 10 is the oldest that runs the programs; they bring no library of the compiler's.
add_compile_definitions(_WIN32_WINNT=0x0A00 UNICODE _UNICODE STRICT NOMINMAX WIN32_LEAN_AND_MEAN)
add_link_options(-static -fstack-protector-strong)
set(CMAKE_CROSSCOMPILING_EMULATOR ${sources}/packaging/windows/wine)
