# kav_room(NAME SOURCES file... HEADERS file... USES library...)
#
# One room of the house as the static library kav_NAME. Headers form a file set, so that each is also compiled alone.
function(kav_room name)
  cmake_parse_arguments(room "" "" "SOURCES;HEADERS;USES" ${ARGN})
  set(target kav_${name})
  add_library(${target} STATIC ${room_SOURCES})
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${room_HEADERS})
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_link_libraries(
    ${target}
    PUBLIC ${room_USES}
    PRIVATE kav_options)
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ${KAV_WERROR})
endfunction()

# kav_tests(NAME SOURCES file... USES library...)
#
# The tests of one room as one program. Each test runs in a process of its own; tests that open windows share the
# keyboard focus of one display and therefore take turns.
function(kav_tests name)
  cmake_parse_arguments(tests "WINDOWS" "" "SOURCES;USES" ${ARGN})
  set(target tests_${name})
  add_executable(${target} ${tests_SOURCES})
  target_link_libraries(${target} PRIVATE ${tests_USES} kav_options)
  set(properties LABELS ${name} TIMEOUT 300)
  if(tests_WINDOWS)
    list(APPEND properties RESOURCE_LOCK display)
  endif()
  gtest_discover_tests(
    ${target}
    TEST_PREFIX "${name}."
    DISCOVERY_TIMEOUT 60
    PROPERTIES ${properties})
endfunction()
