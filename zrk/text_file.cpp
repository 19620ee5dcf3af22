#include "zrk/text_file.h"

#include <cassert>
#include <cstdint>

namespace zrk {

OwnedFile openTextFile(const char* fileName)
{
    constexpr std::uint64_t mostBytes = 4 << 20;
    return openRegularFile(fileName, mostBytes);
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
