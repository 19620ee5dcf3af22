#include "platform/win32.h"

#include <cstdlib>
#include <cstring>
#include <string>

namespace platform {

namespace {

bool holdsDataSet(const std::string& directory)
{
    const DWORD attributes = GetFileAttributesA((directory + "\\###quazo!_data###").c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::string systemsDirectory()
{
    char path[MAX_PATH] = "";
    (::GetWindowsDirectoryA)(path, sizeof path);
    return path;
}

// Where somebody who may not write to the Windows directory has unpacked program and data.
std::string programsDirectory()
{
    char path[MAX_PATH] = "";
    const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string file(path, length < sizeof path ? length : 0); // full: the path was cut off
    return file.substr(0, file.find_last_of('\\'));
}

std::string chosenDirectory()
{
    const char* const requested = std::getenv("QUAZO_WINDOWS_DIRECTORY");
    if (requested != nullptr && *requested != '\0')
        return requested;
    const std::string system = systemsDirectory();
    const std::string program = programsDirectory();
    return !holdsDataSet(system) && holdsDataSet(program) ? program : system;
}

} // namespace

UINT shell_calls::windowsDirectory(LPSTR buffer, UINT size)
{
    const std::string directory = chosenDirectory();
    const std::size_t needed = directory.size() + 1;
    if (buffer == nullptr || size < needed)
        return static_cast<UINT>(needed);
    std::memcpy(buffer, directory.c_str(), needed);
    return static_cast<UINT>(directory.size());
}

} // namespace platform
