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
# And its cross compiler, of texts compared in such code and of an own operator new; the other looks at the same sources.
if(WIN32)
  # Windows 10 is the oldest that runs the programs.
  target_compile_definitions(hx_flags INTERFACE _WIN32_WINNT=0x0A00 UNICODE _UNICODE STRICT NOMINMAX WIN32_LEAN_AND_MEAN)
  target_compile_options(hx_flags INTERFACE -Wno-maybe-uninitialized -Wno-mismatched-new-delete)
endif()
# Sources are compiled several at once, and what is in their unnamed namespaces is taken for a header's.
target_compile_options(hx_flags INTERFACE -Wno-subobject-linkage)
target_compile_definitions(hx_flags INTERFACE _GLIBCXX_ASSERTIONS)
# A module that lacks a symbol fails here, not when a program loads it.
if(WIN32)
  target_link_options(hx_flags INTERFACE LINKER:--dynamicbase,--nxcompat,--high-entropy-va)
else()
  target_link_options(hx_flags INTERFACE LINKER:-z,defs,-z,relro,-z,now)
endif()
find_program(HX_LLD ld.lld)
if(HX_LLD)
  target_link_options(hx_flags INTERFACE -fuse-ld=lld)
endif()

if(HX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# hx_system_files(LIST): of the files that are there for each system, named after it, this system's alone stay. Windows' own headers
# define so many names that no other source is compiled with them.
function(hx_system_files list)
  set(files ${${list}})
  if(WIN32)
    list(FILTER files EXCLUDE REGEX "/posix_[^/]*$")
    set(own ${files})
    list(FILTER own INCLUDE REGEX "/windows_[^/]*$")
    set_source_files_properties(${own} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  else()
    list(FILTER files EXCLUDE REGEX "/windows_[^/]*$")
  endif()
  set(${list} ${files} PARENT_SCOPE)
endfunction()

# hx_windows_resources(NAME FILE "description" [drawing...]): what Windows shows of the program or library FILE, and how it treats the
# program. The drawings are its icons; the first stands for the program.
function(hx_windows_resources name file description)
  if(NOT WIN32)
    return()
  endif()
  set(HX_FILE ${file})
  set(HX_DESCRIPTION ${description})
  set(HX_RESOURCES "")
  get_target_property(type ${name} TYPE)
  if(type STREQUAL "EXECUTABLE")
    string(APPEND HX_RESOURCES "1 24 \"${CMAKE_SOURCE_DIR}/packaging/windows/program.manifest\"\n")
  endif()
  set(result ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc)
  set(number 0)
  foreach(drawing ${ARGN})
    math(EXPR number "${number} + 1")
    set(icon ${CMAKE_CURRENT_BINARY_DIR}/${name}-${number}.ico)
    add_custom_command(OUTPUT ${icon} COMMAND ${CMAKE_SOURCE_DIR}/packaging/windows/icon ${drawing} ${icon}
                       DEPENDS ${drawing} ${CMAKE_SOURCE_DIR}/packaging/windows/icon VERBATIM)
    set_property(SOURCE ${result} APPEND PROPERTY OBJECT_DEPENDS ${icon})
    string(APPEND HX_RESOURCES "${number} ICON \"${icon}\"\n")
  endforeach()
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/resources.rc.in ${result} @ONLY)
  target_sources(${name} PRIVATE ${result})
endfunction()

# hx_module(NAME "description" source...): an add-in that the studio loads from a file of this name.
function(hx_module name description)
  add_library(${name} MODULE ${ARGN})
  set_target_properties(${name} PROPERTIES PREFIX "" LINKER_LANGUAGE CXX)
  hx_windows_resources(${name} ${name}.dll ${description})
endfunction()

# hx_library(NAME [ROOMS folder...] [DEPENDS target...]): the sources of the folder, and of the rooms in it, as one target that sees
# only the folders it may use.
function(hx_library name)
  cmake_parse_arguments(ARG "" "" "ROOMS;DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  foreach(room ${ARG_ROOMS})
    file(GLOB inRoom CONFIGURE_DEPENDS ${room}/*.cpp ${room}/*.h)
    list(APPEND sources ${inRoom})
  endforeach()
  hx_system_files(sources)
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
# case. The label "registry" is for programs that register COM servers. The label "gui" is for programs that open Qt's windows: they have a CTest test for each suite, as all have on Windows. The tests themselves are not optimised: they compile in half the
# time, and what they test is the shipped code all the same.
function(hx_test name)
  cmake_parse_arguments(ARG "" "LABELS" "DEPENDS" ${ARGN})
  if(ARG_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "hx_test ${name}: what is ${ARG_UNPARSED_ARGUMENTS}? One label is all that test discovery passes on")
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  list(TRANSFORM HX_SOURCES_NOT_RUN PREPEND ${CMAKE_SOURCE_DIR}/tests/ OUTPUT_VARIABLE notRun)
  list(REMOVE_ITEM sources ${notRun})
  hx_system_files(sources)
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE hx_flags ${ARG_DEPENDS} GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_options(${name} PRIVATE -O0 -fpch-preprocess)  # the latter for ccache
  if(ARG_LABELS STREQUAL "gui")
    target_precompile_headers(${name} PRIVATE ${HX_TEST_HEADERS} <QtTest> <QtWidgets>)
  elseif(NOT "hx_studio" IN_LIST ARG_DEPENDS)  # Qt asks for other options than the headers were compiled with
    target_precompile_headers(${name} REUSE_FROM hx_test_headers)
  endif()
  if(WIN32 OR ARG_LABELS STREQUAL "gui")  # where starting the program takes as long as a test
    set(suites ${CMAKE_CURRENT_BINARY_DIR}/${name}_suites.cmake)
    add_custom_command(TARGET ${name} POST_BUILD BYPRODUCTS ${suites}
        COMMAND ${CMAKE_COMMAND} -D PROGRAM=$<TARGET_FILE:${name}> -D OUTPUT=${suites} -D LABEL=${ARG_LABELS}
                -D EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR} -D NOT_RUN=${HX_NOT_RUN}
                -P ${CMAKE_SOURCE_DIR}/cmake/list_suites.cmake VERBATIM)
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${suites})
  else()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
  endif()
endfunction()
