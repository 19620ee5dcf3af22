#include "platform/win32_names.h"
#include "platform/windows_directory.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>
#include <unistd.h>

HMODULE GetModuleHandleA(LPCSTR moduleName)
{
    constexpr std::uintptr_t ourModule = 0x400000; // the usual load address of a program
    return moduleName == nullptr ? reinterpret_cast<HMODULE>(ourModule) : nullptr;
}

UINT GetWindowsDirectoryA(LPSTR buffer, UINT size)
{
    std::error_code unreadable; // then the path is empty, and no directory is found beside it
    const std::string directory =
        platform::windowsDirectory(std::getenv("QUAZO_WINDOWS_DIRECTORY"),
                                   std::filesystem::read_symlink("/proc/self/exe", unreadable),
                                   QUAZO_INSTALLED_WINDOWS_DIRECTORY);
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
