#pragma once

#include "tests/support/temporary_directory.h"
#include "zrk/owned_string.h"
#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/shader_pool.h"

#include <cstdio>
#include <string>

/// What `print` writes to the stream that it is given.
template <typename Print>
std::string output(Print print)
{
    std::FILE* stream = std::tmpfile();
    print(stream);
    std::string text(static_cast<std::size_t>(std::ftell(stream)), '\0');
    std::fseek(stream, 0, SEEK_SET);
    text.resize(std::fread(text.data(), 1, text.size(), stream));
    std::fclose(stream);
    return text;
}

/// The layer's line.
inline std::string textOf(const zrk::ShaderLayer& layer)
{
    zrk::String text;
    layer.toText(text);
    return text.cString();
}

/// The shader's block, which loads as the same shader; behind its name a letter for each flag.
inline std::string textOf(const zrk::Shader& shader)
{
    std::string text = shader.name.cString();
    text += std::string(" ") + (shader.hasBlend ? "b" : "") + (shader.hasTexture ? "t" : "") +
            (shader.hasColor ? "c" : "") + "\n{";
    for (const zrk::ShaderLayer* layer : shader.layers())
        text.append(" ").append(textOf(*layer)).append("\n");
    return text + "}\n";
}

/// A shaders pool loaded from a text as a file of this name, and the shaders that it owns.
struct LoadedPool {
    zrk::ShaderPool pool;
    zrk::ShaderResult result{};
    std::string log;

    explicit LoadedPool(const std::string& text, const char* name = "pool")
    {
        const TemporaryDirectory directory;
        directory.write(name, text);
        log = output([&](std::FILE* stream) { result = pool.load(name, stream); });
    }

    /// Every shader as it stands in a file.
    std::string summary() const
    {
        std::string text;
        for (std::uint32_t i = 0; i < pool.count; ++i)
            text += textOf(pool[i]);
        return text;
    }
};

/// A pool of one shader, "sample", which holds the layers that `lines` describe.
inline LoadedPool poolOf(const std::string& lines)
{
    return LoadedPool("sample\n{\n" + lines + "\n}\n");
}
