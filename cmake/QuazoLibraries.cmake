# The libraries that are installed and called.

set(OpenGL_GL_PREFERENCE GLVND)
find_package(OpenGL REQUIRED COMPONENTS OpenGL)
find_package(X11 REQUIRED)
find_package(Threads REQUIRED)
find_package(PNG REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(SDL REQUIRED IMPORTED_TARGET sdl)
pkg_check_modules(SDL_IMAGE REQUIRED IMPORTED_TARGET SDL_image)

# FLTK 1.3 or 1.4. Its own package file looks for far more than its core: one library and its headers
# will do, and where 1.4 draws with Cairo, those of Cairo.
find_path(FLTK_INCLUDE_DIR FL/Fl.H REQUIRED)
find_library(FLTK_LIBRARY fltk REQUIRED)
pkg_check_modules(CAIRO QUIET cairo)
add_library(fltk_core INTERFACE)
target_include_directories(fltk_core SYSTEM INTERFACE "${FLTK_INCLUDE_DIR}" ${CAIRO_INCLUDE_DIRS})
target_link_libraries(fltk_core INTERFACE "${FLTK_LIBRARY}")

# GL and GLU are linked by programs only, so that a test can stand its recorder in for them.
add_library(real_gl INTERFACE)
target_link_libraries(real_gl INTERFACE OpenGL::GLU OpenGL::GL)
