#include <cstdio>
#include <string_view>
#include <unistd.h>

// In place of the C library's: a file of the name "unreadable" ends in an error, and so does one
// of the name "unclosable", which cannot be closed either.
extern "C" std::FILE* __real_fdopen(int descriptor, const char* mode);
extern "C" std::FILE* __wrap_fdopen(int descriptor, const char* mode)
{
    char link[32], name[4096]; // no memory is asked for, which may be made to fail
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const ssize_t length = readlink(link, name, sizeof name);
    const std::string_view path(name, length < 0 ? 0 : static_cast<std::size_t>(length));
    std::FILE* const file = __real_fdopen(descriptor, mode);
    if (!path.ends_with("/unreadable") && !path.ends_with("/unclosable"))
        return file;
    cookie_io_functions_t faulty = {};
    faulty.read = [](void* real, char* buffer, size_t size) {
        const std::size_t bytes = std::fread(buffer, 1, size, static_cast<std::FILE*>(real));
        return bytes == 0 ? ssize_t{-1} : static_cast<ssize_t>(bytes);
    };
    faulty.close = [](void* real) { return std::fclose(static_cast<std::FILE*>(real)); };
    if (path.ends_with("/unclosable"))
        faulty.close = [](void* real) { return std::fclose(static_cast<std::FILE*>(real)) + EOF; };
    return fopencookie(file, mode, faulty);
}
