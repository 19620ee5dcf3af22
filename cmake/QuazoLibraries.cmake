# The libraries that are called, under names that are the same on every system: sdl, sdl_image and
# real_gl. GL and GLU are linked by programs only, so that a test can stand its recorder in for them.

add_library(sdl INTERFACE)
add_library(sdl_image INTERFACE)
add_library(real_gl INTERFACE)

if(WIN32)
  # Static, all but those of the system. scripts/windows_libraries.sh has built them.
  set(CMAKE_FIND_LIBRARY_SUFFIXES .a) # project() has set them to prefer import libraries
  foreach(library IN ITEMS SDL SDL_image png z)
    find_library(QUAZO_${library} ${library} REQUIRED)
    add_library(static_${library} STATIC IMPORTED)
    set_property(TARGET static_${library} PROPERTY IMPORTED_LOCATION "${QUAZO_${library}}")
  endforeach()
  target_link_libraries(static_png INTERFACE static_z)
  target_link_libraries(static_SDL_image INTERFACE static_png static_SDL)
  target_link_libraries(static_SDL INTERFACE winmm gdi32 user32)
  find_path(SDL_INCLUDE_DIR SDL/SDL.h REQUIRED)
  target_include_directories(sdl SYSTEM INTERFACE "${SDL_INCLUDE_DIR}/SDL")
  target_link_libraries(sdl INTERFACE static_SDL)
  target_link_libraries(sdl_image INTERFACE static_SDL_image sdl)
  target_link_libraries(real_gl INTERFACE glu32 opengl32 gdi32)
  return()
endif()

set(OpenGL_GL_PREFERENCE GLVND)
find_package(OpenGL REQUIRED COMPONENTS OpenGL)
find_package(X11 REQUIRED)
find_package(Threads REQUIRED)
find_package(PNG REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(SDL REQUIRED IMPORTED_TARGET sdl)
pkg_check_modules(SDL_IMAGE REQUIRED IMPORTED_TARGET SDL_image)
target_link_libraries(sdl INTERFACE PkgConfig::SDL)
target_link_libraries(sdl_image INTERFACE PkgConfig::SDL_IMAGE sdl)
target_link_libraries(real_gl INTERFACE OpenGL::GLU OpenGL::GL)

# FLTK 1.3 or 1.4. Its own package file looks for far more than its core: one library and its headers
# will do, and where 1.4 draws with Cairo, those of Cairo.
find_path(FLTK_INCLUDE_DIR FL/Fl.H REQUIRED)
find_library(FLTK_LIBRARY fltk REQUIRED)
pkg_check_modules(CAIRO QUIET cairo)
add_library(fltk_core INTERFACE)
target_include_directories(fltk_core SYSTEM INTERFACE "${FLTK_INCLUDE_DIR}" ${CAIRO_INCLUDE_DIRS})
target_link_libraries(fltk_core INTERFACE "${FLTK_LIBRARY}")
