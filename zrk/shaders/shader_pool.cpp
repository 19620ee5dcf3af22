#include "zrk/shaders/shader_pool.h"

#include "zrk/allocation.h"
#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/shader_parser.h"
#include "zrk/text_file.h"

#include <algorithm>
#include <span>
#include <utility>

namespace zrk {

namespace {

// Not std::isalpha: where a shader begins must not depend on the locale.
bool isLetter(int character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

/// Writes the message of `result` to `log`, if there is one, and returns `result`.
ShaderResult report(ShaderResult result, std::FILE* log)
{
    if (log != nullptr) {
        std::fprintf(log, "%s\n", messageFor(result));
        std::fflush(log);
    }
    return result;
}

void reportCount(std::uint32_t count, std::FILE* log)
{
    // Meant: the line says "textures", the number is that of the shaders.
    std::fprintf(log, "%s, ", messageFor(ShaderResult::ok));
    std::fprintf(log, count > 1 ? "%d textures loaded\n" : "%d texture loaded\n",
                 static_cast<int>(count));
    std::fflush(log);
}

} // namespace

ShaderResult ShaderPool::load(const char* name, std::FILE* log)
{
    if (log != nullptr)
        std::fprintf(log, "Loading %s... ", name);
    OwnedFile file = openTextFile(name);
    if (!file)
        return report(ShaderResult::cannotOpenFile, log);
    const ShaderResult result = readShaders(file.get(), log);
    if (!closeFile(std::move(file)))
        return report(ShaderResult::cannotCloseFile, log);
    if (result != ShaderResult::ok)
        return result;
    if (log != nullptr)
        reportCount(count, log);
    fileName = name;
    return ShaderResult::ok;
}

ShaderResult ShaderPool::readShaders(std::FILE* file, std::FILE* log)
{
    for (int character = readCharacter(file); character != EOF; character = readCharacter(file)) {
        if (!isLetter(character))
            continue;
        std::ungetc(character, file);
        const ShaderResult result = parseShader(grow(), file);
        if (result != ShaderResult::ok)
            report(result, log);
        if (isError(result))
            return result;
    }
    if (std::ferror(file) != 0)
        return report(ShaderResult::readError, log);
    return ShaderResult::ok;
}

Shader& ShaderPool::grow()
{
    if (count >= capacity) {
        // Doubled: one more at a time would copy every shader once for each that follows it.
        const std::uint32_t newCapacity = 2 * count + 1;
        std::unique_ptr<Shader[]> longer = newArray<Shader>(newCapacity);
        std::copy_n(shaders.get(), count, longer.get());
        shaders = std::move(longer);
        capacity = newCapacity;
    }
    return shaders[count++];
}

void ShaderPool::resolve(const TexturePool& textures)
{
    for (const Shader& shader : std::span(shaders.get(), count))
        for (ShaderLayer* layer : shader.layers())
            layer->resolve(textures);
}

} // namespace zrk
