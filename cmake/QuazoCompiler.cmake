# How everything of ours is compiled. Linking quazo_compiler is enough.

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

add_library(quazo_compiler INTERFACE)
target_compile_features(quazo_compiler INTERFACE cxx_std_20)
target_include_directories(quazo_compiler INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(quazo_compiler INTERFACE
  -Wall -Wextra -Wpedantic -Werror
  -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wnull-dereference -Wformat=2 -Wimplicit-fallthrough
  # The triangles must not depend on the CPU or on flags: no fused multiply-adds.
  -ffp-contract=off)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g")

if(QUAZO_SANITIZE)
  target_compile_options(quazo_compiler INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quazo_compiler INTERFACE -fsanitize=address,undefined)
endif()
