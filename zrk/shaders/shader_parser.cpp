#include "zrk/shaders/shader_parser.h"

#include "zrk/line_tokens.h"
#include "zrk/shaders/blend_layer.h"
#include "zrk/shaders/color_layer.h"
#include "zrk/shaders/keywords.h"
#include "zrk/shaders/line_buffer.h"
#include "zrk/shaders/multitexture_layer.h"
#include "zrk/shaders/shader.h"
#include "zrk/shaders/texture_layer.h"
#include "zrk/text_file.h"

#include <cstring>

namespace zrk {

namespace {

struct LayerParser {
    Keyword keyword;
    ShaderResult (*parse)(Shader& shader, LineTokens& line);
    bool Shader::*flag;
};

constexpr LayerParser layerParsers[] = {
    {Keyword::texture, parseTextureLayer, &Shader::hasTexture},
    {Keyword::multitexture, parseMultitextureLayer, &Shader::hasTexture},
    {Keyword::blend, parseBlendLayer, &Shader::hasBlend},
    {Keyword::color, parseColorLayer, &Shader::hasColor},
};

bool holdsClosingBrace(const char* text)
{
    return std::strchr(text, '}') != nullptr;
}

bool skipOpeningBrace(std::FILE* file)
{
    int character = readCharacter(file);
    while (character != '{' && character != EOF)
        character = readCharacter(file);
    return character == '{';
}

void skipBlanks(std::FILE* file)
{
    int character = readCharacter(file);
    while (character == ' ' || character == '\n')
        character = readCharacter(file);
    std::ungetc(character, file); // the end of the file stays where it is
}

/// A line of any other kind means nothing.
ShaderResult parseLayer(Shader& shader, const char* kind, LineTokens& line)
{
    for (const LayerParser& parser : layerParsers) {
        if (!isWord(kind, parser.keyword))
            continue;
        const ShaderResult result = parser.parse(shader, line);
        if (result == ShaderResult::ok)
            shader.*parser.flag = true;
        return result;
    }
    return ShaderResult::ok;
}

} // namespace

ShaderResult parseShader(Shader& shader, std::FILE* file)
{
    char* const line = lineBuffer().data();
    if (!readLine(file, lineBuffer()))
        return ShaderResult::nothingToLoad;
    bool closed = holdsClosingBrace(line); // counts where the file ends right after the "{"
    line[std::strcspn(line, " \n")] = '\0';
    shader.name = line;
    if (!skipOpeningBrace(file))
        return ShaderResult::missingOpeningBrace;
    skipBlanks(file);

    while (readLine(file, lineBuffer())) {
        LineTokens tokens(line);
        const char* kind = tokens.next(" :,\n");
        closed = false;
        if (kind == nullptr)
            continue;
        const ShaderResult result = parseLayer(shader, kind, tokens);
        if (result != ShaderResult::ok)
            return result;
        // The end of the first token ends the text: a brace further on is not seen.
        if (holdsClosingBrace(line))
            return shader.layers().empty() ? ShaderResult::emptyShader : ShaderResult::ok;
    }
    if (std::feof(file) == 0)
        return ShaderResult::readError;
    return closed ? ShaderResult::ok : ShaderResult::missingClosingBrace;
}

} // namespace zrk
