# Most of the time of a compilation goes into reading the headers of the toolkit and of the test library. Tests get them
# read beforehand, the rooms only where they are built a second time: what a room includes is checked without.
# Tests are not optimised: compiling them takes longer than running them.
set(kav_test_options -O0)

# kav_precompiled(NAME HEADER OPTIONS option... USES library...)
function(kav_precompiled name header)
  cmake_parse_arguments(precompiled "" "" "OPTIONS;USES" ${ARGN})
  add_library(${name} OBJECT ${PROJECT_SOURCE_DIR}/cmake/Precompiled.cpp)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE kav_wx_core ${precompiled_USES} kav_options)
  target_compile_options(${name} PRIVATE ${precompiled_OPTIONS})
  target_precompile_headers(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/${header})
endfunction()

if(KAV_TESTS)
  find_package(GTest REQUIRED)
  kav_precompiled(kav_precompiled_tests PrecompiledTests.h OPTIONS ${kav_test_options} USES GTest::gmock)
endif()
if(KAV_PRECOMPILE_ROOMS)
  kav_precompiled(kav_precompiled_rooms Precompiled.h)
endif()

# kav_use_precompiled(TARGET FROM USES library...): for a target that uses the toolkit's core library.
function(kav_use_precompiled target from)
  if("kav_wx_core" IN_LIST ARGN)
    target_precompile_headers(${target} REUSE_FROM ${from})
  endif()
endfunction()

# kav_alone(OUT SOURCES HEADERS): the headers that no source of the same name proves to be whole by including it first.
function(kav_alone out sources headers)
  foreach(source ${sources})
    string(REGEX REPLACE "\\.cpp$" ".h" header ${source})
    if(header IN_LIST headers)
      file(STRINGS ${source} first REGEX "^#include" LIMIT_COUNT 1)
      file(RELATIVE_PATH path ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/${header})
      if(NOT first STREQUAL "#include \"${path}\"")
        message(FATAL_ERROR "${source} must include \"${path}\" first: that proves that the header can stand alone.")
      endif()
      list(REMOVE_ITEM headers ${header})
    endif()
  endforeach()
  set(${out} ${headers} PARENT_SCOPE)
endfunction()

# kav_room(NAME SOURCES file... HEADERS file... USES library...)
#
# One room of the house as the static library kav_NAME. Every header can be included alone: its source includes it
# first, or it is compiled by itself.
function(kav_room name)
  cmake_parse_arguments(room "" "" "SOURCES;HEADERS;USES" ${ARGN})
  set(target kav_${name})
  add_library(${target} STATIC ${room_SOURCES})
  kav_alone(alone "${room_SOURCES}" "${room_HEADERS}")
  target_sources(
    ${target} PUBLIC FILE_SET alone TYPE HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${alone})
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(
    ${target}
    PUBLIC ${room_USES}
    PRIVATE kav_options)
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ${KAV_VERIFY_HEADERS})
  if(KAV_PRECOMPILE_ROOMS)
    kav_use_precompiled(${target} kav_precompiled_rooms ${room_USES})
  endif()
endfunction()

# kav_tests(NAME SOURCES file... USES library...)
#
# The tests of one room as one program. Each test runs in a process of its own, several at a time. Those that type, point
# or look at the screen are named Screen... and have a display each: it has one keyboard focus and one pointer.
function(kav_tests name)
  cmake_parse_arguments(tests "" "" "SOURCES;USES" ${ARGN})
  set(target tests_${name})
  add_executable(${target} ${tests_SOURCES})
  target_link_libraries(${target} PRIVATE ${tests_USES} kav_options)
  target_compile_options(${target} PRIVATE ${kav_test_options})
  kav_use_precompiled(${target} kav_precompiled_tests ${tests_USES})
  set(common TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60)
  gtest_discover_tests(
    ${target} ${common}
    TEST_FILTER -Screen*
    TEST_LIST ${target}_list
    PROPERTIES LABELS ${name} TIMEOUT 300)
  gtest_discover_tests(
    ${target} ${common}
    TEST_FILTER Screen*
    TEST_LIST ${target}_screen_list
    PROPERTIES LABELS ${name} TIMEOUT 300 ENVIRONMENT KAV_OWN_DISPLAY=${PROJECT_SOURCE_DIR}/scripts/display)
endfunction()
