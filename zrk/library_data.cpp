#include "zrk/library_data.h"

#include "zrk/text_file.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <ostream>

namespace zrk {

namespace {

// With the line feed and the terminator: a longer name goes on in the next line.
using LineBuffer = std::array<char, 4096>;

// Past the end of the file a name is empty, which no pool can open.
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
        result = static_cast<std::int32_t>(shaders.load(line.data(), nullptr));
    }
    if (result != 0 && log != nullptr)
        *log << failure << line.data() << "'\n" << std::flush;
    return result;
}

void LibraryData::upload()
{
    textures.uploadAll(); // the layers copy the names that this makes
    shaders.resolve(textures);
}

} // namespace zrk
