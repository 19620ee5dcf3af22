#pragma once

#include "zrk/regular_file.h"

#include <cstdio>
#include <span>

namespace zrk {

// Text files, with CR LF read as LF on every system. A carriage return without a line feed is an
// ordinary character.

/// Opens the text file `fileName` as `openRegularFile` does. Files of more than 4 MiB are refused:
/// they bound the memory and the time that a load can take.
[[nodiscard]] OwnedFile openTextFile(const char* fileName);

/// Returns the next character, or EOF at the end of the file and after a read error; `ferror`
/// tells which.
[[nodiscard]] int readCharacter(std::FILE* file);

/// Reads a line as `fgets` does: up to and including a line feed, at most `line.size()` - 1
/// characters, always terminated. The rest of a longer line is the next line. Returns false and an
/// empty line at the end of the file and after a read error.
[[nodiscard]] bool readLine(std::FILE* file, std::span<char> line);

} // namespace zrk
