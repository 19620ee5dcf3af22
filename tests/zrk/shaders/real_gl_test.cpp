#include "tests/support/gl_test_context.h"
#include "tests/support/virtual_display.h"
#include "tests/zrk/shaders/sample_pool.h"
#include "zrk/renderer.h"
#include "zrk/shaders/texture_units.h"
#include "zrk/textures/texture_pool.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <sstream>
#include <vector>

using namespace zrk;

namespace {

/// What OpenGL calls a place in a line, and the words that may stand there with its values.
struct Position {
    GLenum name;
    const char* words;
};

constexpr Position positions[] = {
    {GL_TEXTURE_MIN_FILTER,
     "nearest 2600 linear 2601 nearest_mipmap_nearest 2700 linear_mipmap_nearest 2701 "
     "nearest_mipmap_linear 2702 linear_mipmap_linear 2703"},
    {GL_TEXTURE_MAG_FILTER, "nearest 2600 linear 2601"},
    {GL_TEXTURE_WRAP_S, "clamp 2900 repeat 2901 clamp_to_edge 812F"},
    {GL_TEXTURE_WRAP_T, "clamp 2900 repeat 2901 clamp_to_edge 812F"},
    {GL_TEXTURE_ENV_MODE, "replace 1E01 modulate 2100 decal 2101 blend 0BE2"},
    {GL_BLEND_SRC, "zero 0 one 1 src_alpha 302 one_minus_src_alpha 303 dst_alpha 304 "
                   "one_minus_dst_alpha 305 dst_color 306 one_minus_dst_color 307 "
                   "src_alpha_saturate 308"},
    {GL_BLEND_DST, "zero 0 one 1 src_color 300 one_minus_src_color 301 src_alpha 302 "
                   "one_minus_src_alpha 303 dst_alpha 304 one_minus_dst_alpha 305"},
};

std::map<std::string, GLint> wordsAt(const Position& position)
{
    std::map<std::string, GLint> words;
    std::istringstream text(position.words);
    std::string word;
    for (GLint value = 0; text >> word >> std::hex >> value;)
        words[word] = value;
    return words;
}

/// The lines with `word` at a position; textures have the environment colour `color`.
std::vector<std::string> linesWith(std::size_t position, const std::string& word,
                                   const std::string& color)
{
    std::string fields[] = {"linear", "nearest", "repeat", "clamp", "decal", "one", "zero"};
    fields[position] = word;
    if (position >= 5)
        return {"blend: " + fields[5] + ", " + fields[6]};
    const std::string state = fields[0] + ", " + fields[1] + ", " + fields[2] + ", " + fields[3] +
                              ", " + fields[4] + ", " + color;
    return {"texture: 1, " + state, "multitexture: 2, 1, " + state + ", 0, " + state};
}

GLint current(GLenum name)
{
    GLint value = 0;
    if (name == GL_BLEND_SRC || name == GL_BLEND_DST)
        glGetIntegerv(name, &value);
    else if (name == GL_TEXTURE_ENV_MODE)
        glGetTexEnviv(GL_TEXTURE_ENV, name, &value);
    else
        glGetTexParameteriv(GL_TEXTURE_2D, name, &value);
    return value;
}

using Pixel = std::array<GLubyte, 4>;

Pixel shownPixel()
{
    Pixel pixel;
    glReadPixels(32, 32, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, &pixel);
    return pixel;
}

/// Real OpenGL of two units, and two textures of one pixel.
struct RealGl : testing::Test {
    VirtualDisplay display;
    GlTestContext context{{64, 64}};
    TexturePool textures;

    RealGl()
    {
        renderer.multitextureAvailable = true;
        renderer.glActiveTextureARB = glActiveTexture;
        renderer.textureUnits = 2;
        glCaches = {};
        textures.resize(2);
        const Pixel pixels[] = {{255, 0, 255, 255}, {128, 255, 64, 255}};
        for (std::uint32_t i = 0; i < 2; ++i) {
            glGenTextures(1, &textures.textures[i].glName);
            glBindTexture(GL_TEXTURE_2D, textures.textures[i].glName);
            glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, &pixels[i]);
        }
    }

    /// Follows the layer of `line`, which sets `name` to `value`, to OpenGL and into that of
    /// `otherLine`, and to texts and back.
    void expectRoundTrip(const std::string& line, GLenum name, GLint value,
                         const std::string& otherLine)
    {
        LoadedPool loaded = poolOf(line), other = poolOf(otherLine);
        ASSERT_EQ(loaded.result, ShaderResult::ok) << line;
        loaded.pool.resolve(textures);
        other.pool.resolve(textures);
        ShaderLayer& layer = *loaded.pool[0].layers().front();
        layer.apply();
        EXPECT_EQ(current(name), value) << line;
        other.pool[0].apply();
        layer.reapply();
        other.pool[0].layers().front()->readBack();
        const std::string print = output([&](std::FILE* out) { layer.write(out); });
        for (const std::string& back :
             {other.summary(), poolOf(textOf(layer)).summary(), poolOf(print).summary()})
            EXPECT_EQ(back, loaded.summary());
    }
};

} // namespace

TEST_F(RealGl, HasEveryWordInItsPlaceAndNoOtherIsTaken)
{
    std::set<std::string> words{"bool", "true", "texture", "multitexture", "color", "Linear"};
    for (const Position& position : positions)
        for (const auto& [word, value] : wordsAt(position))
            words.insert(word);
    for (std::size_t i = 0; i < std::size(positions); ++i) {
        const std::map<std::string, GLint> accepted = wordsAt(positions[i]);
        const auto others = linesWith(i, accepted.begin()->first, "<0, 0, 0, 0>");
        for (const std::string& word : words) {
            const auto lines = linesWith(i, word, "<0.25, 1, 0.5, 0>");
            for (std::size_t kind = 0; kind < lines.size(); ++kind)
                if (accepted.contains(word))
                    expectRoundTrip(lines[kind], positions[i].name, accepted.at(word),
                                    others[kind]);
                else
                    EXPECT_EQ(poolOf(lines[kind]).result, ShaderResult::unknownParameter) << word;
        }
    }
}

TEST_F(RealGl, ShowsWhatTheLayersDescribeAndFadesWithoutATexture)
{
    LoadedPool layered = poolOf("multitexture: 2, 0 nearest nearest repeat repeat replace 0 0 0 0 "
                                "1 nearest nearest repeat repeat blend 0 1 0 0");
    const LoadedPool tinted = poolOf("color: <0.2, 0, 0.2, 1>\nblend: one, one");
    layered.pool.resolve(textures);
    for (const std::uint32_t unit : {0u, 1u}) {
        layered.pool[0].apply();
        glRecti(-1, -1, 1, 1);
        EXPECT_EQ(shownPixel(), (Pixel{127, 255, 191, 255})); // green where the second is light
        tinted.pool[0].apply();
        glRecti(-1, -1, 1, 1);
        EXPECT_EQ(shownPixel(), (Pixel{178, 255, 242, 255})); // and the colour
        layered.pool[0].apply();
        selectUnit(unit);
        renderer.fadeScreen(1.0f, 0);
        EXPECT_EQ(shownPixel(), (Pixel{0, 0, 0, 255})) << unit;
    }
}
