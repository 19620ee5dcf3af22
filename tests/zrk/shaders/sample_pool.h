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
    char* data = nullptr;
    std::size_t size = 0;
    std::FILE* stream = open_memstream(&data, &size);
    print(stream);
    std::fclose(stream);
    std::string text(data, size);
    std::free(data);
    return text;
}

/// The layer's line.
inline std::string textOf(const zrk::ShaderLayer& layer)
{
    zrk::String text;
    layer.toText(text);
    return text.cString();
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

    /// Every shader as a line: its name, a letter for each flag (b, t, c), and its layers, each
    /// ended by a semicolon.
    std::string summary() const
    {
        std::string text;
        for (std::uint32_t i = 0; i < pool.count; ++i) {
            text += std::string(pool[i].name.cString()) + "[" + (pool[i].hasBlend ? "b" : "") +
                    (pool[i].hasTexture ? "t" : "") + (pool[i].hasColor ? "c" : "") + "]";
            for (const zrk::ShaderLayer* layer : pool[i].layers())
                text += " " + textOf(*layer) + ";";
            text += "\n";
        }
        return text;
    }
};

/// A pool of one shader, "sample", which holds the layers that `lines` describe.
inline LoadedPool poolOf(const std::string& lines)
{
    return LoadedPool("sample\n{\n" + lines + "\n}\n");
}
