#include "zrk/text_file.h"

#include <cassert>
#include <cerrno>

namespace zrk {

namespace {

// On POSIX systems opening a directory succeeds; reading from it fails with EISDIR.
bool isDirectory(std::FILE* file)
{
    errno = 0;
    const int first = std::getc(file);
    if (first == EOF)
        return errno == EISDIR;
    std::ungetc(first, file);
    return false;
}

} // namespace

OwnedFile openTextFile(const char* fileName)
{
    OwnedFile file(fileName != nullptr ? std::fopen(fileName, "r") : nullptr);
    if (file && isDirectory(file.get()))
        file.reset();
    return file;
}

bool closeFile(OwnedFile file)
{
    return std::fclose(file.release()) == 0;
}

int readCharacter(std::FILE* file)
{
    const int character = std::getc(file);
    if (character != '\r')
        return character;
    const int next = std::getc(file);
    if (next == '\n')
        return next;
    std::ungetc(next, file); // does nothing with EOF
    return character;
}

bool readLine(std::FILE* file, std::span<char> line)
{
    assert(line.size() > 1);
    std::size_t length = 0;
    int character = 0;
    while (length + 1 < line.size() && character != '\n') {
        character = readCharacter(file);
        if (character == EOF) {
            if (std::ferror(file) != 0)
                length = 0; // as fgets: what was read before the error is no line
            break;
        }
        line[length++] = static_cast<char>(character);
    }
    line[length] = '\0';
    return length > 0;
}

} // namespace zrk
