# SPDX-License-Identifier: MIT

# cmake -D PROGRAM=... -D OUTPUT=... [-D LABEL=...] [-D EMULATOR=...] [-D NOT_RUN=...] -P: writes a CTest test for each suite of a
# GoogleTest program. The emulator starts it, NOT_RUN names tests to leave out as GoogleTest's filter does.
set(filter --gtest_filter=*:-${NOT_RUN})
execute_process(COMMAND ${EMULATOR} ${PROGRAM} --gtest_list_tests ${filter} OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\r" "" listed "${listed}")
string(REGEX REPLACE "^Running main[^\n]*\n" "" listed "${listed}")  # a greeting, no suite
string(REGEX MATCHALL "\n[^ \n][^\n]*\\." suites "\n${listed}")
# There is one registry for all tests, and on Windows one keyboard for all windows.
set(lock "")
if(LABEL STREQUAL "registry")
  set(lock "RESOURCE_LOCK \"registry;desktop\"")
elseif(LABEL STREQUAL "gui" AND EMULATOR)
  set(lock "RESOURCE_LOCK desktop")
endif()
set(tests "")
foreach(suite ${suites})
  string(STRIP ${suite} suite)
  string(REGEX REPLACE "\\.$" "" suite ${suite})
  string(APPEND tests "add_test([=[${suite}]=] ${EMULATOR} [=[${PROGRAM}]=] [=[--gtest_filter=${suite}.*:-${NOT_RUN}]=])\n"
         "set_tests_properties([=[${suite}]=] PROPERTIES TIMEOUT 300 LABELS \"${LABEL}\" ${lock})\n")
endforeach()
file(WRITE ${OUTPUT} "${tests}")
