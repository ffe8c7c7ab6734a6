# Packs the build in BUILD_DIR, asks Debian's own tools what they think of the package, unpacks it and compares what its
# program draws with what the build's program draws.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)
set(place ${BUILD_DIR}/package-test)
file(REMOVE_RECURSE ${place})

run(${CMAKE_CPACK_COMMAND} --config ${BUILD_DIR}/CPackConfig.cmake -B ${place})
file(GLOB package ${place}/*.deb)
run(dpkg-deb --extract ${package} ${place}/root)

run(lintian --allow-root --fail-on error,warning ${package})
set(share ${place}/root/usr/share)
run(desktop-file-validate ${share}/applications/kavmap.desktop)
file(GLOB metainfo ${share}/metainfo/*.metainfo.xml)
run(appstreamcli validate --pedantic --no-net ${metainfo})

# Every icon is as large as its directory says.
foreach(size 16 22 24 32 48 64 128 256)
  file(READ ${share}/icons/hicolor/${size}x${size}/apps/kavmap.png ends OFFSET 16 LIMIT 8 HEX)
  math(EXPR hex ${size} OUTPUT_FORMAT HEXADECIMAL)
  string(SUBSTRING ${hex} 2 -1 hex)
  if(NOT ends MATCHES "^0+${hex}0+${hex}$")
    message(FATAL_ERROR "the icon of ${size} pixels is ${ends}")
  endif()
endforeach()

draw(${place}/root/usr/bin/kavmap ${place}/packed.pnm)
draw(${BUILD_DIR}/bin/kavmap ${place}/built.pnm)
same_picture(${place}/packed.pnm ${place}/built.pnm)
file(REMOVE_RECURSE ${place})
