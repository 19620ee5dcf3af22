#include "zrk/library_data.h"

#include "zrk/text_file.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <ostream>

namespace zrk {

namespace {

// Including the line feed and the terminator; the rest of a longer line is read as the next line.
using LineBuffer = std::array<char, 4096>;

// At the end of the file the line becomes empty, a name that no pool can open.
void readName(std::FILE* file, LineBuffer& line)
{
    if (readLine(file, line))
        line[std::strcspn(line.data(), "\n")] = '\0';
}

} // namespace

std::int32_t LibraryData::loadData(const char* fileName, std::ostream* log)
{
    const OwnedFile file = openTextFile(fileName);
    if (!file) {
        if (log != nullptr)
            *log << "Cannot open file\"" << fileName << "\"\n" << std::flush;
        return 1;
    }
    LineBuffer line;
    readName(file.get(), line);
    const char* failure = "Error loading textures pool file : '";
    std::int32_t result = textures.load(line.data(), log);
    if (result == 0) {
        readName(file.get(), line);
        failure = "Error loading shaders pool file : '";
        // Without a log: the shaders pool writes to C streams only.
        result = static_cast<std::int32_t>(shaders.load(line.data(), nullptr));
    }
    if (result != 0 && log != nullptr)
        *log << failure << line.data() << "'\n" << std::flush;
    return result;
}

void LibraryData::upload()
{
    textures.uploadAll(); // first, because the layers copy the names that it generates
    shaders.resolve(textures);
}

} // namespace zrk
