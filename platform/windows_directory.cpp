#include "platform/windows_directory.h"

#include <system_error>

namespace platform {

std::filesystem::path windowsDirectory(const char* requested,
                                       const std::filesystem::path& executable,
                                       const std::filesystem::path& installed)
{
    if (requested != nullptr && *requested != '\0')
        return requested;
    // Relative to the executable, so that a tree that was moved or unpacked anywhere works.
    for (const char* place : {"windows", "../../share/quazo", "../share/quazo"}) {
        std::filesystem::path directory = (executable.parent_path() / place).lexically_normal();
        std::error_code unreadable;
        if (std::filesystem::is_directory(directory, unreadable))
            return directory;
    }
    return installed;
}

} // namespace platform
