#pragma once

#include <cstdint>
#include <cstdio>
#include <limits>
#include <memory>

namespace zrk {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// Owns an open file. Its destructor ignores a failure to close; `closeFile` reports it.
using OwnedFile = std::unique_ptr<std::FILE, CloseFile>;

/// Opens `fileName` for reading its bytes as they are. Returns null for a null name, for anything
/// but a regular file (a directory, a device, a FIFO), for a file of more than `mostBytes`, and if
/// the file cannot be opened. Never waits for another process.
[[nodiscard]] OwnedFile
openRegularFile(const char* fileName,
                std::uint64_t mostBytes = std::numeric_limits<std::uint64_t>::max());

/// Closes `file`, which must not be null. Returns false if closing failed; the file is gone either
/// way.
[[nodiscard]] bool closeFile(OwnedFile file);

} // namespace zrk
