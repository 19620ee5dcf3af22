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

// The flag is set here as well as by `Shader::addLayer`, which has none for multitexture layers.
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
    std::ungetc(character, file); // does nothing with EOF
}

/// Ignores a line of any other kind.
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
    // A brace anywhere in the name line closes the block only if the file ends right after the "{".
    bool closed = std::strchr(line, '}') != nullptr;
    line[std::strcspn(line, " \n")] = '\0';
    shader.name = line;
    if (!skipOpeningBrace(file))
        return ShaderResult::missingOpeningBrace;
    skipBlanks(file);

    while (readLine(file, lineBuffer())) {
        const char* const brace = std::strchr(line, '}'); // before the tokenizer cuts the line
        LineTokens tokens(line);
        const char* const kind = tokens.next(" :,\n");
        closed = false;
        if (kind == nullptr)
            continue;
        // Only a brace in the first token closes the block; one behind a layer's parameters is
        // text.
        closed = brace != nullptr && brace < kind + std::strlen(kind);
        const ShaderResult result = parseLayer(shader, kind, tokens);
        if (result != ShaderResult::ok)
            return result;
        if (closed)
            return shader.layers().empty() ? ShaderResult::emptyShader : ShaderResult::ok;
    }
    if (std::feof(file) == 0)
        return ShaderResult::readError;
    return closed ? ShaderResult::ok : ShaderResult::missingClosingBrace;
}

} // namespace zrk
