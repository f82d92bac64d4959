# SPDX-License-Identifier: MIT

# The same for 32-bit Windows, of which no program can be run here.
set(HX_WINDOWS_COMPILER i686-w64-mingw32)
set(HX_WINDOWS_FOLDERS windows-32)
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
set(CMAKE_SYSTEM_PROCESSOR x86)
unset(CMAKE_CROSSCOMPILING_EMULATOR)
