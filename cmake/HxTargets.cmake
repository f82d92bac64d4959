# SPDX-License-Identifier: MIT
include(GoogleTest)

find_program(HX_CCACHE ccache)
if(HX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # What is compiled with precompiled headers is kept too, and found again from another checkout or build folder.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
      CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${HX_CCACHE})
endif()

add_library(hx_flags INTERFACE)
target_compile_options(hx_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# GCC 12 warns falsely of overlapping copies where a literal and a temporary text are joined in optimised code (PR 105651).
target_compile_options(hx_flags INTERFACE -Wno-restrict)
# Sources are compiled several at once, and what is in their unnamed namespaces is taken for a header's.
target_compile_options(hx_flags INTERFACE -Wno-subobject-linkage)
target_compile_definitions(hx_flags INTERFACE _GLIBCXX_ASSERTIONS)
# A module that lacks a symbol fails here, not when a program loads it.
target_link_options(hx_flags INTERFACE LINKER:-z,defs,-z,relro,-z,now)
find_program(HX_LLD ld.lld)
if(HX_LLD)
  target_link_options(hx_flags INTERFACE -fuse-ld=lld)
endif()

if(HX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# hx_library(NAME [ROOMS folder...] [DEPENDS target...]): the sources of the folder, and of the rooms in it, as one target that sees
# only the folders it may use.
function(hx_library name)
  cmake_parse_arguments(ARG "" "" "ROOMS;DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  foreach(room ${ARG_ROOMS})
    file(GLOB inRoom CONFIGURE_DEPENDS ${room}/*.cpp ${room}/*.h)
    list(APPEND sources ${inRoom})
  endforeach()
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(${name} PUBLIC hx_flags ${ARG_DEPENDS})
  # Headers are included by their folder below src, which whoever links the target finds here and nowhere else.
  file(RELATIVE_PATH folder ${CMAKE_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  if(NOT folder MATCHES "^\\.\\.")
    set(root ${CMAKE_BINARY_DIR}/include/${name})
    get_filename_component(parent ${root}/${folder} DIRECTORY)
    file(MAKE_DIRECTORY ${parent})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${folder} SYMBOLIC)
    target_include_directories(${name} PUBLIC ${root})
  endif()
endfunction()

# hx_qt_headers(NAME): most of what a source of the toolkit takes to compile are the toolkit's headers: compiled once.
function(hx_qt_headers name)
  target_compile_options(${name} PRIVATE -fpch-preprocess)  # for ccache
  target_precompile_headers(${name} PRIVATE <QtWidgets> <algorithm> <functional> <memory> <string> <vector>)
endfunction()

# hx_test(NAME [DEPENDS target...] [LABELS label]): the folder's sources as one GoogleTest program, a CTest test for each
# case. The label "gui" is for programs that open Qt's windows: they have a CTest test for each suite. The tests themselves are not optimised: they compile in half the
# time, and what they test is the shipped code all the same.
function(hx_test name)
  cmake_parse_arguments(ARG "" "LABELS" "DEPENDS" ${ARGN})
  if(ARG_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "hx_test ${name}: what is ${ARG_UNPARSED_ARGUMENTS}? One label is all that test discovery passes on")
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE hx_flags ${ARG_DEPENDS} GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_options(${name} PRIVATE -O0 -fpch-preprocess)  # the latter for ccache
  if(ARG_LABELS STREQUAL "gui")
    target_precompile_headers(${name} PRIVATE ${HX_TEST_HEADERS} <QtTest> <QtWidgets>)
  elseif(NOT "hx_studio" IN_LIST ARG_DEPENDS)  # Qt asks for other options than the headers were compiled with
    target_precompile_headers(${name} REUSE_FROM hx_test_headers)
  endif()
  if(ARG_LABELS STREQUAL "gui")  # where starting the program takes as long as a test
    set(suites ${CMAKE_CURRENT_BINARY_DIR}/${name}_suites.cmake)
    add_custom_command(TARGET ${name} POST_BUILD BYPRODUCTS ${suites}
        COMMAND ${CMAKE_COMMAND} -D PROGRAM=$<TARGET_FILE:${name}> -D OUTPUT=${suites} -D LABEL=gui
                -P ${CMAKE_SOURCE_DIR}/cmake/list_suites.cmake)
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${suites})
  else()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
  endif()
endfunction()
