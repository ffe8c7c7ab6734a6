# How every room is compiled. Linked privately, so nothing of it leaks to what the rooms use.
add_library(kav_options INTERFACE)
target_compile_features(kav_options INTERFACE cxx_std_20)

target_compile_options(
  kav_options
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            # A fused multiply-add rounds once instead of twice and moves pixels. In every room, because an inline
            # function is compiled with the flags of whoever includes it.
            -ffp-contract=off
            $<$<BOOL:${KAV_WERROR}>:-Werror>)

# What releases get besides: checks where libraries are called and where vectors and spans are indexed, guards around the
# stack, addresses that nobody can guess, and tables of functions that nobody can write to. See SECURITY.md.
add_library(kav_hardening INTERFACE)
set(kav_release $<AND:$<CONFIG:Release>,$<BOOL:${KAV_HARDEN}>>)
target_compile_options(
  kav_hardening INTERFACE $<${kav_release}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3;-D_GLIBCXX_ASSERTIONS;-fPIE;-fstack-protector-strong>)
target_link_options(kav_hardening INTERFACE $<${kav_release}:-pie;LINKER:-z,relro,-z,now>)

# What the second build of every room gets besides, where there is one. Its code is less optimised: the sanitizers' reports
# are of use only where they can be read.
add_library(kav_sanitizers INTERFACE)
set(kav_sanitizer_options -fsanitize=address,undefined -fno-sanitize-recover=undefined)
# With the sanitizers in between, g++ 12 sees uninitialised values in the standard library that are not there.
target_compile_options(kav_sanitizers INTERFACE ${kav_sanitizer_options} -O1 -g1 -fno-omit-frame-pointer
                                                -Wno-maybe-uninitialized)
target_link_options(kav_sanitizers INTERFACE ${kav_sanitizer_options})

# wxWidgets as two targets: the base library for rooms without windows, the core library for the others.
function(kav_find_wx target)
  find_package(wxWidgets 3.2 REQUIRED COMPONENTS ${ARGN})
  add_library(${target} INTERFACE)
  target_include_directories(${target} SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
  target_compile_definitions(${target} INTERFACE ${wxWidgets_DEFINITIONS})
  target_compile_options(${target} INTERFACE ${wxWidgets_CXX_FLAGS})
  target_link_directories(${target} INTERFACE ${wxWidgets_LIBRARY_DIRS})
  target_link_libraries(${target} INTERFACE ${wxWidgets_LIBRARIES})
endfunction()

kav_find_wx(kav_wx_base base)
kav_find_wx(kav_wx_core core base)

find_package(PkgConfig REQUIRED)
pkg_check_modules(kav_cairo REQUIRED IMPORTED_TARGET cairo)
pkg_check_modules(kav_gtk REQUIRED IMPORTED_TARGET gtk+-3.0)
