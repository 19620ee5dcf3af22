#include "zrk/regular_file.h"

#include <fcntl.h> // defines O_NONBLOCK on POSIX systems

#ifdef O_NONBLOCK
#include <sys/stat.h>
#include <unistd.h>
#else
#include "zrk/cexception.h"

#include <filesystem>
#include <new>
#endif

namespace zrk {

#ifdef O_NONBLOCK

OwnedFile openRegularFile(const char* fileName, std::uint64_t mostBytes)
{
    // Without O_NONBLOCK, opening a FIFO would wait until somebody writes to it.
    constexpr int mode = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const int descriptor = fileName != nullptr ? open(fileName, mode) : -1;
    if (descriptor < 0)
        return nullptr;
    struct stat status {};
    OwnedFile file;
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
        static_cast<std::uint64_t>(status.st_size) <= mostBytes)
        file.reset(fdopen(descriptor, "rb"));
    if (!file)
        close(descriptor);
    return file;
}

#else

OwnedFile openRegularFile(const char* fileName, std::uint64_t mostBytes)
try {
    std::error_code error;
    if (fileName == nullptr || !std::filesystem::is_regular_file(fileName, error) ||
        std::filesystem::file_size(fileName, error) > mostBytes || error)
        return nullptr;
    return OwnedFile(std::fopen(fileName, "rb"));
} catch (const std::bad_alloc&) { // a path takes memory
    throw Cexception();
}

#endif

bool closeFile(OwnedFile file)
{
    return std::fclose(file.release()) == 0;
}

} // namespace zrk
