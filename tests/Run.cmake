# What the tests of the installed program and of the package have in common.

# Runs a command, which must end well.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} ended with ${status}:\n${output}")
  endif()
endfunction()

# Draws a map of shipped files to PICTURE, without a display and with a home that does not exist before.
function(draw program picture)
  set(home ${picture}.home)
  file(MAKE_DIRECTORY ${home})
  file(WRITE ${home}/map.ini
       "Size=300\n[Borders]\nShow1=1\n[Text]\nShow1=1\nFile1=countries.dat\n[SourceBitmap]\nShow1=1\nFile1=world.png\n")
  # Exit status 2 would say that a file was not found.
  run(${CMAKE_COMMAND} -E chdir ${home} ${CMAKE_COMMAND} -E env --unset=DISPLAY --unset=WAYLAND_DISPLAY HOME=${home}
      ${program} --settings map.ini --time 2026-06-21T12:00 --render ${picture})
endfunction()

function(same_picture got expected)
  run(${CMAKE_COMMAND} -E compare_files ${got} ${expected})
endfunction()
