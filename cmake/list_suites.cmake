# SPDX-License-Identifier: MIT

# cmake -D PROGRAM=... -D OUTPUT=... -D LABEL=... -P: writes a CTest test for each suite of a GoogleTest program.
execute_process(COMMAND ${PROGRAM} --gtest_list_tests OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "\n[^ \n][^\n]*\\." suites "\n${listed}")
set(tests "")
foreach(suite ${suites})
  string(STRIP ${suite} suite)
  string(REGEX REPLACE "\\.$" "" suite ${suite})
  string(APPEND tests "add_test([=[${suite}]=] [=[${PROGRAM}]=] [=[--gtest_filter=${suite}.*]=])\n"
         "set_tests_properties([=[${suite}]=] PROPERTIES TIMEOUT 300 LABELS ${LABEL})\n")
endforeach()
file(WRITE ${OUTPUT} ${tests})
