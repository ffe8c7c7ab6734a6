# Installs the build in BUILD_DIR into an empty prefix, moves it and draws a map of shipped files from there.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)
set(place ${BUILD_DIR}/install-test)
file(REMOVE_RECURSE ${place})

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${place}/usr)
foreach(file bin/kavmap bin/kavmap-adif bin/kavmap-series share/kavmap/kavmap-series-job share/kavmap/mapper.pnt
             share/man/man1/kavmap.1 share/man/man1/kavmap-adif.1 share/man/man1/kavmap-series.1
             share/bash-completion/completions/kavmap share/zsh/site-functions/_kavmap
             share/applications/kavmap.desktop share/icons/hicolor/scalable/apps/kavmap.svg)
  if(NOT EXISTS ${place}/usr/${file})
    message(FATAL_ERROR "${file} was not installed")
  endif()
endforeach()

file(MAKE_DIRECTORY ${place}/opt)
file(RENAME ${place}/usr ${place}/opt/kavmap)
draw(${place}/opt/kavmap/bin/kavmap ${place}/moved.pnm)
draw(${BUILD_DIR}/bin/kavmap ${place}/built.pnm)
same_picture(${place}/moved.pnm ${place}/built.pnm)
# They find what they share.
foreach(command kavmap-adif kavmap-series)
  run(${place}/opt/kavmap/bin/${command} --version)
endforeach()
file(REMOVE_RECURSE ${place})
