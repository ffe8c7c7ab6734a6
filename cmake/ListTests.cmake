# Writes to LIST what ctest shall run of the tests in PROGRAM: a suite at a time, and a test at a time where the suite is
# named Screen...
execute_process(COMMAND ${PROGRAM} --gtest_list_tests OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
get_filename_component(room ${PROGRAM} NAME)
string(REGEX REPLACE "^tests_" "" room ${room})
if(LABEL STREQUAL "sanitized")
  set(room sanitized.${room})
endif()

function(add_to_list name filter)
  file(APPEND ${LIST} "add_test([[${room}.${name}]] [[${PROGRAM}]] [[--gtest_filter=${filter}]])\n"
                      "set_tests_properties([[${room}.${name}]] PROPERTIES LABELS ${LABEL} TIMEOUT 1500 ${ARGN})\n")
endfunction()

file(WRITE ${LIST} "")
string(REPLACE "\n" ";" lines "${output}")
foreach(line ${lines})
  string(REGEX REPLACE " *#.*" "" line "${line}")
  if(line MATCHES "^([A-Za-z0-9_/]+)\\.$")
    set(suite ${CMAKE_MATCH_1})
    if(NOT suite MATCHES "^Screen")
      add_to_list(${suite} "${suite}.*")
    endif()
  elseif(suite MATCHES "^Screen" AND line MATCHES "^  (.+)$")
    add_to_list(${suite}.${CMAKE_MATCH_1} "${suite}.${CMAKE_MATCH_1}" ENVIRONMENT KAV_OWN_DISPLAY=${DISPLAY})
  endif()
endforeach()
