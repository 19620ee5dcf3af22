#pragma once

#include <filesystem>

namespace platform {

/// The directory that stands for the Windows directory: `wished` unless it is null or empty; else
/// the first that is there of `windows` beside the executable, as a build leaves it, and the
/// share/quazo two and one levels up, as an installed or moved tree has it; else `installed`.
[[nodiscard]] std::filesystem::path windowsDirectory(const char* wished,
                                                     const std::filesystem::path& executable,
                                                     const std::filesystem::path& installed);

} // namespace platform
