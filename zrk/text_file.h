#pragma once

#include <cstdio>
#include <memory>
#include <span>

namespace zrk {

// Text files, with CR LF read as LF on every system. A carriage return without a line feed is an
// ordinary character.

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// Owns an open file. Its destructor ignores a failure to close; `closeFile` reports it.
using OwnedFile = std::unique_ptr<std::FILE, CloseFile>;

/// Opens `fileName` for reading. Returns null for a null name, a directory, and a file that cannot
/// be opened.
[[nodiscard]] OwnedFile openTextFile(const char* fileName);

/// Closes `file`, which must not be null. Returns false if closing failed; the file is gone either
/// way.
[[nodiscard]] bool closeFile(OwnedFile file);

/// Returns the next character, or EOF at the end of the file and after a read error; `ferror`
/// tells which.
[[nodiscard]] int readCharacter(std::FILE* file);

/// Reads a line as `fgets` does: up to and including a line feed, at most `line.size()` - 1
/// characters, always terminated. The rest of a longer line is the next line. Returns false and an
/// empty line at the end of the file and after a read error.
[[nodiscard]] bool readLine(std::FILE* file, std::span<char> line);

} // namespace zrk
