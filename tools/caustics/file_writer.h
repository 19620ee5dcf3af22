#pragma once

#include "tools/caustics/data_files.h"

#include <filesystem>
#include <span>
#include <string>

namespace caustics {

/// Puts `files` into `folder`, which is made if its parent exists. Every file is written under
/// a temporary name first and all take their names together, while no signal is let in. Yields
/// an empty text, or what went wrong; then nothing of these files is left, nor a folder made
/// for them.
std::string writeFiles(const std::filesystem::path& folder, std::span<const DataFile> files);

} // namespace caustics
