// A textures pool file, beside the images "a", of 8 bits, and "b", of 24.

#include "fuzz/harness.h"
#include "tests/support/temporary_directory.h"
#include "zrk/textures/texture_pool.h"

void tryInput(std::span<const std::uint8_t> input)
{
    static const TemporaryDirectory directory;
    [[maybe_unused]] static const bool ready = [] {
        directory.write("a", "P5 1 1 255\nx");
        directory.write("b", "P6 1 1 255\nxyz");
        return true;
    }();
    zrk::TexturePool pool;
    (void)pool.load(fileOf(input), nullptr);
    pool.uploadAll();
}
