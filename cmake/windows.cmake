# SPDX-License-Identifier: MIT

# Compiles for 64-bit Windows with Debian's cross compiler. The libraries stand in build/windows-libraries and Qt in
# build/windows-toolkit, where packaging/windows/{libraries,toolkit} put them.
if(NOT HX_WINDOWS_COMPILER)
  set(HX_WINDOWS_COMPILER x86_64-w64-mingw32)
  set(HX_WINDOWS_FOLDERS windows)
endif()
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(compiler ${HX_WINDOWS_COMPILER})
set(CMAKE_C_COMPILER ${compiler}-gcc-posix)
set(CMAKE_CXX_COMPILER ${compiler}-g++-posix)
set(CMAKE_RC_COMPILER ${compiler}-windres)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH sources)
set(CMAKE_FIND_ROOT_PATH ${sources}/build/${HX_WINDOWS_FOLDERS}-libraries/prefix
    ${sources}/build/${HX_WINDOWS_FOLDERS}-toolkit/prefix /usr/${compiler})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Qt's tools are the installed ones.
execute_process(COMMAND gcc -print-multiarch OUTPUT_VARIABLE architecture OUTPUT_STRIP_TRAILING_WHITESPACE)
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${architecture}/cmake)

# No program brings a library of the compiler's.
add_link_options(-static -fstack-protector-strong)
set(CMAKE_CROSSCOMPILING_EMULATOR ${sources}/packaging/windows/wine)
