#pragma once

#include <cstdio>
#include <span>

namespace zrk {

// Text files as a text-mode stream gives them: a carriage return right before a line feed is not
// seen. A lone carriage return is a character like any other.

/// Opens `fileName` for reading; null when it cannot be opened. A directory cannot, nor a null
/// name. The caller closes the file.
[[nodiscard]] std::FILE* openTextFile(const char* fileName);

/// The next character, or EOF at the end and after a read error, which `ferror` tells apart.
[[nodiscard]] int readCharacter(std::FILE* file);

/// Reads as `fgets` does: up to and including a line feed, at most `line.size()` - 1 characters,
/// always terminated. The rest of a longer line is the next line. False, and an empty line, when
/// not one character could be read before the end of the file, or when reading failed.
[[nodiscard]] bool readLine(std::FILE* file, std::span<char> line);

} // namespace zrk
