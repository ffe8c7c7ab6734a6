# Most of the time of a compilation goes into reading the headers of the toolkit and of the test library. Tests get them
# read beforehand, and so may the rooms: what a room includes is checked where it does not.
# Tests are not optimised: compiling them takes longer than running them.
set(kav_test_options -O0)

# kav_precompiled(NAME HEADER OPTIONS option... USES library...)
function(kav_precompiled name header)
  cmake_parse_arguments(precompiled "" "" "OPTIONS;USES" ${ARGN})
  add_library(${name} OBJECT ${PROJECT_SOURCE_DIR}/cmake/Precompiled.cpp)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE kav_wx_core kav_options ${precompiled_USES})
  target_compile_options(${name} PRIVATE ${precompiled_OPTIONS})
  target_precompile_headers(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/${header})
endfunction()

if(KAV_TESTS)
  find_package(GTest REQUIRED)
  kav_precompiled(kav_precompiled_tests PrecompiledTests.h OPTIONS ${kav_test_options} USES GTest::gmock)
endif()
if(KAV_PRECOMPILE_ROOMS)
  kav_precompiled(kav_precompiled_rooms Precompiled.h USES kav_hardening)
endif()
if(KAV_SANITIZE)
  kav_precompiled(kav_precompiled_sanitized Precompiled.h USES kav_sanitizers)
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

# kav_room(NAME SOURCES file... HEADERS file... USES library... [INSIDE library...])
#
# One room of the house as the static library kav_NAME, with KAV_SANITIZE also as kav_NAME_sanitized. Every header can be
# included alone: its source includes it first, or it is compiled by itself. What is used INSIDE no header shows.
function(kav_room name)
  cmake_parse_arguments(room "" "" "SOURCES;HEADERS;USES;INSIDE" ${ARGN})
  set(target kav_${name})
  kav_library(${target} ${room_USES})
  kav_alone(alone "${room_SOURCES}" "${room_HEADERS}")
  target_sources(
    ${target} PUBLIC FILE_SET alone TYPE HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${alone})
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ${KAV_VERIFY_HEADERS})
  if(KAV_PRECOMPILE_ROOMS)
    kav_use_precompiled(${target} kav_precompiled_rooms ${room_USES})
  endif()
  if(KAV_SANITIZE)
    kav_sanitized(uses ${room_USES})
    kav_library(${target}_sanitized ${uses})
    target_link_libraries(${target}_sanitized PUBLIC kav_sanitizers)
    kav_use_precompiled(${target}_sanitized kav_precompiled_sanitized ${room_USES})
  endif()
endfunction()

# The library of kav_room(), which uses ARGN.
macro(kav_library target)
  add_library(${target} STATIC ${room_SOURCES})
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/include)
  target_link_libraries(
    ${target}
    PUBLIC ${ARGN}
    PRIVATE kav_options kav_hardening ${room_INSIDE})
endmacro()

# kav_sanitized(OUT library...): the same libraries, the rooms among them as they are built with the sanitizers.
function(kav_sanitized out)
  set(libraries)
  foreach(library ${ARGN})
    if(TARGET ${library}_sanitized)
      set(library ${library}_sanitized)
    endif()
    list(APPEND libraries ${library})
  endforeach()
  set(${out} ${libraries} PARENT_SCOPE)
endfunction()

# kav_program(NAME SOURCES file... USES library...)
#
# A program in bin/, with KAV_SANITIZE also as NAME_sanitized in sanitized/bin/. Data files are found beside a program, in
# ../share/kavmap; a build gets there by a link to the source tree.
function(kav_program name)
  cmake_parse_arguments(program "" "" "SOURCES;USES" ${ARGN})
  kav_executable(${name} . ${program_USES})
  if(KAV_SANITIZE)
    kav_sanitized(uses ${program_USES})
    kav_executable(${name}_sanitized sanitized ${uses})
  endif()
endfunction()

macro(kav_executable target under)
  add_executable(${target} ${program_SOURCES})
  target_link_libraries(${target} PRIVATE ${ARGN} kav_options kav_hardening)
  set(place ${PROJECT_BINARY_DIR}/${under})
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ${name} RUNTIME_OUTPUT_DIRECTORY ${place}/bin)
  file(MAKE_DIRECTORY ${place}/share)
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/data ${place}/share/kavmap SYMBOLIC)
endmacro()
