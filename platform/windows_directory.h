#pragma once

#include <filesystem>

namespace platform {

/// The directory that stands for the Windows directory: `requested` unless it is null or empty;
/// else the first existing one of `windows` beside the executable, as in a build, and share/quazo
/// two levels and one level up, as in an installed tree; else `installed`.
[[nodiscard]] std::filesystem::path windowsDirectory(const char* requested,
                                                     const std::filesystem::path& executable,
                                                     const std::filesystem::path& installed);

} // namespace platform
