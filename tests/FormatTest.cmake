# All sources in SOURCE_DIR are as .clang-format says.
cmake_policy(VERSION 3.24)
find_program(clang_format NAMES clang-format-14 clang-format REQUIRED)
file(GLOB rooms ${SOURCE_DIR}/*)
list(REMOVE_ITEM rooms ${SOURCE_DIR}/build)
list(TRANSFORM rooms APPEND "/*.cpp" OUTPUT_VARIABLE sources)
list(TRANSFORM rooms APPEND "/*.h" OUTPUT_VARIABLE headers)
file(GLOB_RECURSE files ${sources} ${headers})
execute_process(COMMAND ${clang_format} --dry-run -Werror ${files} COMMAND_ERROR_IS_FATAL ANY)
