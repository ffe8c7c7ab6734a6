# Arranges the tree that becomes the package as Debian wants it. The same input gives the same bytes.
set(share ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
file(GLOB pages ${share}/man/*/*)
execute_process(COMMAND gzip -9n ${pages} ${share}/doc/kavmap/changelog COMMAND_ERROR_IS_FATAL ANY)
# Debian's zsh looks for what packages complete in a directory of its own.
if(EXISTS ${share}/zsh/site-functions)
  file(RENAME ${share}/zsh/site-functions ${share}/zsh/vendor-completions)
endif()
