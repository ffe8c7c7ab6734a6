# kav_tests(NAME SOURCES file... USES library... [DEFINES definition...] [NEEDS target...])
#
# The tests of one room as the program tests_NAME and, where the rooms are built with sanitizers as well, a second time as
# sanitized/tests_NAME. What is tested is compiled for each of the two; the tests are compiled once.
function(kav_tests name)
  cmake_parse_arguments(tests "" "" "SOURCES;USES;DEFINES;NEEDS" ${ARGN})
  set(objects tests_${name}_objects)
  add_library(${objects} OBJECT ${tests_SOURCES})
  target_link_libraries(${objects} PRIVATE ${tests_USES} kav_options)
  target_compile_options(${objects} PRIVATE ${kav_test_options})
  target_compile_definitions(${objects} PRIVATE ${tests_DEFINES})
  kav_use_precompiled(${objects} kav_precompiled_tests ${tests_USES})

  kav_test_program(tests_${name} bin ${name} USES ${tests_USES} NEEDS ${tests_NEEDS})
  if(KAV_SANITIZE)
    kav_sanitized(uses ${tests_USES})
    kav_sanitized(needs ${tests_NEEDS})
    kav_test_program(tests_${name}_sanitized sanitized/bin sanitized USES ${uses} NEEDS ${needs})
    kav_take_first(tests_${name}_sanitized ${uses})
  endif()
endfunction()

# A program of tests and what ctest shall run of it: a suite in one process, or, of those that type, point or look at the
# screen and are named Screen..., each test in a process and on a display of its own, as a display has one keyboard focus
# and one pointer.
function(kav_test_program target place label)
  cmake_parse_arguments(program "" "" "USES;NEEDS" ${ARGN})
  add_executable(${target} $<TARGET_OBJECTS:${objects}>)
  set_target_properties(${target} PROPERTIES OUTPUT_NAME tests_${name} RUNTIME_OUTPUT_DIRECTORY
                                                                       ${PROJECT_BINARY_DIR}/${place})
  target_link_libraries(${target} PRIVATE ${program_USES} kav_options)
  if(program_NEEDS)
    add_dependencies(${target} ${program_NEEDS})
  endif()
  set(list ${CMAKE_CURRENT_BINARY_DIR}/${target}.cmake)
  add_custom_command(
    TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:${target}> -DLABEL=${label} -DLIST=${list}
            -DDISPLAY=${PROJECT_SOURCE_DIR}/scripts/display -P ${PROJECT_SOURCE_DIR}/cmake/ListTests.cmake
    BYPRODUCTS ${list}
    VERBATIM)
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${list})
endfunction()

# Lets the linker take a room's inline functions from the room, with its sanitizers, and not from a test that uses them too.
function(kav_take_first target)
  kav_rooms_in(rooms ${ARGN})
  list(TRANSFORM rooms REPLACE "(.+)" "$<TARGET_FILE:\\1>")
  target_link_options(${target} BEFORE PRIVATE LINKER:--whole-archive ${rooms} LINKER:--no-whole-archive)
endfunction()

# kav_rooms_in(OUT library...): those that are rooms with sanitizers, and the rooms below them.
function(kav_rooms_in out)
  set(rooms)
  foreach(library ${ARGN})
    if(library MATCHES "_sanitized$")
      get_target_property(used ${library} INTERFACE_LINK_LIBRARIES)
      kav_rooms_in(below ${used})
      list(APPEND rooms ${library} ${below})
    endif()
  endforeach()
  list(REMOVE_DUPLICATES rooms)
  set(${out} ${rooms} PARENT_SCOPE)
endfunction()
