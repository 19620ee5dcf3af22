#include "zrk/library_data.h"

#include "tests/support/allocations.h"
#include "tests/support/gl_recorder.h"
#include "tests/zrk/shaders/sample_pool.h"
#include "zrk/cexception.h"
#include "zrk/shaders/layer_registry.h"
#include "zrk/text_file.h"

#include <gtest/gtest.h>

TEST(LibraryData, StaysWholeWhicheverAllocationFails)
{
    const TemporaryDirectory directory;
    directory.write("data", "textures\nshaders\n");
    directory.write("textures", "2\nimage.pgm mask\nimage.pgm grey\n");
    directory.write("image.pgm", "P5 1 1 255\nx");
    directory.write("shaders", "first\n{\ntexture: 1 linear linear repeat repeat decal 1 2 3 4\n"
                               "multitexture: 1 0 linear linear clamp clamp blend 1 2 3 4\n"
                               "color: 1 1 1 1\nblend: one, one\n}\nsecond\n{\n}\n");
    // A file that stayed open, the data file or a pool's, would have one of the next two.
    const auto secondDescriptor = [] {
        const zrk::OwnedFile first = zrk::openTextFile("data"), second = zrk::openTextFile("data");
        return fileno(second.get());
    };
    const int descriptor = secondDescriptor();
    gl_recorder::reset();
    std::size_t allocation = 0;
    for (bool failed = true; failed;) {
        zrk::LibraryData data;
        std::uint32_t layers = zrk::layerRegistry.count();
        try {
            const allocations::Failure failure(++allocation);
            EXPECT_EQ(data.loadData("data", nullptr), 0);
            failed = false;
        } catch (const zrk::Cexception&) {
        }
        EXPECT_EQ(secondDescriptor(), descriptor) << allocation;
        data.upload(); // whatever is there
        for (std::uint32_t i = 0; i < data.shaders.count; ++i)
            layers += static_cast<std::uint32_t>(data.shaders[i].layers().size());
        EXPECT_EQ(zrk::layerRegistry.count(), layers) << allocation;
        EXPECT_EQ(data.loadData("data", nullptr), 0) << allocation; // there is memory again
    }
    EXPECT_GT(allocation, 20u);
}
