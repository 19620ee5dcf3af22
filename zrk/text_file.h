#pragma once

#include <cstdio>
#include <memory>
#include <span>

namespace zrk {

// Text files as a text-mode stream gives them: a carriage return right before a line feed is not
// seen. A lone carriage return is a character like any other.

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// An open file, closed with its owner on whichever way that goes. `closeFile` closes it where
/// the outcome counts.
using OwnedFile = std::unique_ptr<std::FILE, CloseFile>;

/// Opens `fileName` for reading; null when it cannot be opened. A directory cannot, nor a null
/// name.
[[nodiscard]] OwnedFile openTextFile(const char* fileName);

/// Closes `file`, which is there; false when closing reports a failure. It is closed either way.
[[nodiscard]] bool closeFile(OwnedFile file);

/// The next character, or EOF at the end and after a read error, which `ferror` tells apart.
[[nodiscard]] int readCharacter(std::FILE* file);

/// Reads as `fgets` does: up to and including a line feed, at most `line.size()` - 1 characters,
/// always terminated. The rest of a longer line is the next line. False, and an empty line, when
/// not one character could be read before the end of the file, or when reading failed.
[[nodiscard]] bool readLine(std::FILE* file, std::span<char> line);

} // namespace zrk
