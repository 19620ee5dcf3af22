#include "platform/win32_names.h"
#include "platform/windows_directory.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <system_error>
#include <unistd.h>

HMODULE GetModuleHandleA(LPCSTR moduleName)
{
    constexpr std::uintptr_t ourModule = 0x400000; // the usual load address of a program
    return moduleName == nullptr ? reinterpret_cast<HMODULE>(ourModule) : nullptr;
}

namespace {

// A path that fits a buffer of MAX_PATH, which is what callers of GetWindowsDirectoryA have. A
// longer one is replaced by another name of the same directory, by way of a descriptor that stays
// open.
std::string shortened(std::string path)
{
    static constinit int descriptor = -1;
    if (path.size() < MAX_PATH)
        return path;
    if (descriptor >= 0)
        close(descriptor);
    descriptor = open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0)
        return "/proc/self/fd/" + std::to_string(descriptor);
    std::fprintf(stderr, "quazo: cannot open the Windows directory, whose path has %zu bytes\n",
                 path.size());
    return path;
}

} // namespace

UINT GetWindowsDirectoryA(LPSTR buffer, UINT size)
{
    std::error_code unreadable; // then the path is empty, and no directory is found beside it
    const std::string directory = shortened(
        platform::windowsDirectory(std::getenv("QUAZO_WINDOWS_DIRECTORY"),
                                   std::filesystem::read_symlink("/proc/self/exe", unreadable),
                                   QUAZO_INSTALLED_WINDOWS_DIRECTORY));
    const std::size_t needed = directory.size() + 1;
    if (buffer == nullptr || size < needed)
        return static_cast<UINT>(needed);
    std::memcpy(buffer, directory.c_str(), needed);
    return static_cast<UINT>(directory.size());
}

BOOL SetCurrentDirectoryA(LPCSTR pathName)
{
    return pathName != nullptr && chdir(pathName) == 0;
}
