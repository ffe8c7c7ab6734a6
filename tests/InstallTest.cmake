# Installs the build in BUILD_DIR into an empty prefix, as a package would, and draws a map with shipped borders from
# there.
set(prefix ${BUILD_DIR}/install-test)
file(REMOVE_RECURSE ${prefix})

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} ended with ${status}:\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix}/usr)
foreach(file bin/kavmap share/kavmap/mapper.pnt share/man/man1/kavmap.1 bin/kavmap-adif share/man/man1/kavmap-adif.1 bin/kavmap-series
             share/kavmap/kavmap-series-job
             share/bash-completion/completions/kavmap share/zsh/site-functions/_kavmap share/applications/kavmap.desktop
             share/pixmaps/kavmap.xpm)
  if(NOT EXISTS ${prefix}/usr/${file})
    message(FATAL_ERROR "${file} was not installed")
  endif()
endforeach()

# They find what they share.
foreach(command kavmap-adif kavmap-series)
  run(${prefix}/usr/bin/${command} --version)
endforeach()

file(MAKE_DIRECTORY ${prefix}/home)
file(WRITE ${prefix}/borders.ini "Size=200\n[Borders]\nShow1=1\n[Text]\nShow1=1\nFile1=countries.dat\n")
# Exit status 2 would say that a file was not found.
run(${CMAKE_COMMAND} -E chdir ${prefix}/home ${CMAKE_COMMAND} -E env HOME=${prefix}/home ${prefix}/usr/bin/kavmap
    --settings ${prefix}/borders.ini --render ${prefix}/map.png)
file(REMOVE_RECURSE ${prefix})
