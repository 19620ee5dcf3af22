// A shaders pool file. Whatever is read prints as a text.

#include "fuzz/harness.h"
#include "zrk/owned_string.h"
#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/shader_pool.h"

void tryInput(std::span<const std::uint8_t> input)
{
    zrk::ShaderPool pool;
    (void)pool.load(fileOf(input), nullptr);
    zrk::String text;
    for (std::uint32_t i = 0; i < pool.count; ++i)
        for (const zrk::ShaderLayer* layer : pool[i].layers())
            layer->toText(text);
}
