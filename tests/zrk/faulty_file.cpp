#include <cstdio>
#include <string_view>

// In place of the C library's: a file of the name "unreadable" ends in an error, and so does one
// of the name "unclosable", which cannot be closed either.
extern "C" std::FILE* __real_fopen(const char* name, const char* mode);
extern "C" std::FILE* __wrap_fopen(const char* name, const char* mode)
{
    const std::string_view fault(name);
    std::FILE* const file = __real_fopen(name, mode);
    if (fault != "unreadable" && fault != "unclosable")
        return file;
    cookie_io_functions_t faulty = {};
    faulty.read = [](void* real, char* buffer, size_t size) {
        const std::size_t bytes = std::fread(buffer, 1, size, static_cast<std::FILE*>(real));
        return bytes == 0 ? ssize_t{-1} : static_cast<ssize_t>(bytes);
    };
    faulty.close = [](void* real) { return std::fclose(static_cast<std::FILE*>(real)); };
    if (fault == "unclosable")
        faulty.close = [](void* real) { return std::fclose(static_cast<std::FILE*>(real)) + EOF; };
    return fopencookie(file, mode, faulty);
}
