#pragma once

#include "tools/caustics/data_files.h"

#include <filesystem>
#include <span>
#include <string>

namespace caustics {

/// Writes `files` into `folder`, which is created if its parent exists. Every file is written under
/// a temporary name, and all are renamed at the end, with signals blocked. Returns an empty text,
/// or the error; then neither these files nor a folder created for them are left.
std::string writeFiles(const std::filesystem::path& folder, std::span<const DataFile> files);

} // namespace caustics
