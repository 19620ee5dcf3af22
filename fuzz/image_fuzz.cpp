// An image file of any format but TGA, which its name would have to say.

#include "fuzz/harness.h"
#include "zrk/textures/texture.h"

void tryInput(std::span<const std::uint8_t> input)
{
    zrk::Texture texture;
    (void)texture.load(fileOf(input), nullptr);
}
