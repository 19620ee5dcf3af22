# How everything of ours is compiled: linking quazo_compiler is enough. Only what the code cannot do
# without is set here. Optimisation and warnings as errors stand in CMakePresets.json, so that the
# flags of somebody who builds a package are theirs.

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug, Release, RelWithDebInfo or MinSizeRel" FORCE)
endif()
set(CMAKE_CXX_EXTENSIONS OFF)

add_library(quazo_compiler INTERFACE)
target_compile_features(quazo_compiler INTERFACE cxx_std_20)
target_include_directories(quazo_compiler INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(quazo_compiler INTERFACE
  -Wall -Wextra -Wpedantic
  -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wnull-dereference -Wformat=2 -Wimplicit-fallthrough
  # The triangles must not depend on the CPU or on flags: no fused multiply-adds.
  -ffp-contract=off)

# A saver reads files that it did not write, beside a locked screen. These make a memory error end the
# program instead of giving it away. A packager's own choice of fortification holds.
if(NOT QUAZO_SANITIZE)
  include(CheckCXXCompilerFlag)
  foreach(flag IN ITEMS -fstack-protector-strong -fcf-protection)
    string(MAKE_C_IDENTIFIER "QUAZO_HAS${flag}" known)
    check_cxx_compiler_flag(${flag} ${known})
    if(${known})
      target_compile_options(quazo_compiler INTERFACE ${flag})
    endif()
  endforeach()
  if(NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
    target_compile_options(quazo_compiler INTERFACE
      $<$<CONFIG:Release,RelWithDebInfo>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=2>)
  endif()
  if(NOT WIN32)
    target_compile_options(quazo_compiler INTERFACE -fPIE)
    target_link_options(quazo_compiler INTERFACE -pie LINKER:-z,relro LINKER:-z,now)
  endif()
endif()

if(WIN32)
  # The system's header leaves out what nobody here uses, and min and max. _GDI32_ gives the OpenGL
  # functions their plain names, so that a test can stand its recorder in for them.
  target_compile_definitions(quazo_compiler INTERFACE
    WIN32_LEAN_AND_MEAN NOMINMAX _GDI32_ _WIN32_WINNT=0x0A00)
  # The stack protector's functions are in a library of their own.
  target_link_options(quazo_compiler INTERFACE
    -static -fstack-protector-strong LINKER:--tsaware $<$<CONFIG:Release>:-s>)
endif()

if(QUAZO_SANITIZE)
  target_compile_options(quazo_compiler INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quazo_compiler INTERFACE -fsanitize=address,undefined)
endif()
