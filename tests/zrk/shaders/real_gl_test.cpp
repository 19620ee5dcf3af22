#include "tests/support/gl_test_context.h"
#include "tests/support/virtual_display.h"
#include "tests/zrk/shaders/sample_pool.h"
#include "zrk/renderer.h"
#include "zrk/shaders/blend_layer.h"
#include "zrk/shaders/multitexture_layer.h"
#include "zrk/shaders/texture_layer.h"
#include "zrk/shaders/texture_units.h"

#include <gtest/gtest.h>

#include <array>

using namespace zrk;

namespace {

using Pixel = std::array<GLubyte, 4>;

/// Real OpenGL, and two textures: one of four colours, one of a single dim one.
struct RealGl {
    VirtualDisplay display;
    GlTestContext context{64, 64};
    TexturePool textures;

    RealGl()
    {
        glCaches = {};
        renderer.multitextureAvailable = true;
        renderer.glActiveTextureARB = glActiveTexture;
        renderer.textureUnits = maxStages; // OpenGL 1.3 on software has eight
        textures.resize(2);
        makeTexture(0, 2,
                    {{{255, 0, 0, 255}, {0, 255, 0, 255}, {0, 0, 255, 255}, {255, 255, 255, 255}}});
        makeTexture(1, 1, {{{128, 255, 64, 255}}});
    }

    void makeTexture(std::uint32_t position, GLsizei size, const std::array<Pixel, 4>& pixels)
    {
        glGenTextures(1, &textures.textures[position].glName);
        glBindTexture(GL_TEXTURE_2D, textures.textures[position].glName);
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, size, size, 0, GL_RGBA, GL_UNSIGNED_BYTE, &pixels);
    }
};

/// Sets what OpenGL is to answer to what a new layer has.
void forget(ShaderLayer& layer)
{
    if (auto* texture = dynamic_cast<TextureLayer*>(&layer))
        texture->state = {.glName = texture->state.glName};
    if (auto* blend = dynamic_cast<BlendLayer*>(&layer))
        blend->srcFactor = blend->dstFactor = GL_ZERO;
    if (auto* several = dynamic_cast<MultitextureLayer*>(&layer))
        for (std::uint32_t unit = 0; unit < several->stageCount; ++unit)
            several->stages[unit].state = {.glName = several->stages[unit].state.glName};
}

/// The pixel at the middle of each quarter of the picture, from the lower left to the upper right.
std::array<Pixel, 4> quarters()
{
    std::array<Pixel, 4> pixels;
    for (int i = 0; i < 4; ++i)
        glReadPixels(16 + i % 2 * 32, 16 + i / 2 * 32, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE,
                     &pixels[static_cast<std::size_t>(i)]);
    return pixels;
}

/// The quarters after a square was drawn over the whole picture.
std::array<Pixel, 4> drawn()
{
    glBegin(GL_QUADS);
    for (const auto& [s, t] : {std::array{0, 0}, {1, 0}, {1, 1}, {0, 1}}) {
        glTexCoord2i(s, t);
        glVertex2i(2 * s - 1, 2 * t - 1);
    }
    glEnd();
    return quarters();
}

std::array<Pixel, 4> all(const Pixel& pixel)
{
    return {pixel, pixel, pixel, pixel};
}

} // namespace

TEST(RealGl, AnswersWhatEveryLayerHasSet)
{
    RealGl gl;
    for (const AcceptedWord& entry : acceptedWords())
        for (const auto set : {&ShaderLayer::apply, &ShaderLayer::reapply}) {
            LoadedPool loaded = poolOf(entry.line());
            loaded.pool.resolve(gl.textures);
            ShaderLayer& layer = *loaded.pool[0].layers().front();
            const std::string expected = textOf(layer);
            (layer.*set)();
            forget(layer);
            layer.readBack();
            EXPECT_EQ(textOf(layer), expected);
            EXPECT_EQ(glGetError(), GLenum{GL_NO_ERROR}) << expected;
        }
}

TEST(RealGl, ShowsWhatTheLayersDescribe)
{
    RealGl gl;
    LoadedPool layered =
        poolOf("multitexture: 2, 0, nearest, nearest, repeat, repeat, replace, <0, 0, 0, 0>, "
               "1, nearest, nearest, repeat, repeat, modulate, <0, 0, 0, 0>");
    const LoadedPool tinted = poolOf("color: <0, 0.2, 1, 1>\nblend: one, one");
    layered.pool.resolve(gl.textures);
    for (int frame = 0; frame < 2; ++frame) {
        layered.pool[0].apply();
        // Red, green, blue and white, each times (128, 255, 64) / 255.
        const std::array<Pixel, 4> products{
            {{128, 0, 0, 255}, {0, 255, 0, 255}, {0, 0, 64, 255}, {128, 255, 64, 255}}};
        EXPECT_EQ(drawn(), products);
        tinted.pool[0].apply();
        const std::array<Pixel, 4> sums{
            {{128, 51, 255, 255}, {0, 255, 255, 255}, {0, 51, 255, 255}, {128, 255, 255, 255}}};
        EXPECT_EQ(drawn(), sums);
        Shader().apply();
        EXPECT_EQ(drawn(), all({255, 255, 255, 255}));
    }
}

TEST(RealGl, FadesWithoutATextureWhicheverUnitIsSelected)
{
    RealGl gl;
    LoadedPool layered =
        poolOf("multitexture: 2, 1, nearest, nearest, repeat, repeat, replace, <0, 0, 0, 0>, "
               "1, nearest, nearest, repeat, repeat, replace, <0, 0, 0, 0>");
    layered.pool.resolve(gl.textures);
    layered.pool[0].apply();
    for (const std::uint32_t unit : {0u, 1u}) {
        selectUnit(unit);
        EXPECT_EQ(drawn(), all({128, 255, 64, 255}));
        renderer.fadeScreen(1.0f, 0);
        EXPECT_EQ(quarters(), all({0, 0, 0, 255})) << "unit " << unit;
    }
}
