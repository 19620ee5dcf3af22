#include "zrk/shaders/shader.h"

#include "tests/support/gl_recorder.h"
#include "tests/zrk/shaders/sample_pool.h"
#include "zrk/renderer.h"
#include "zrk/shaders/blend_layer.h"
#include "zrk/shaders/color_layer.h"
#include "zrk/shaders/multitexture_layer.h"
#include "zrk/shaders/texture_layer.h"
#include "zrk/shaders/texture_units.h"
#include "zrk/textures/texture_pool.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string_view>
#include <tuple>
#include <utility>

using namespace zrk;

namespace {

/// The calls since the last time, in short.
std::string calls()
{
    constexpr std::pair<std::string_view, const char*> shorter[] = {
        {"glEnable(GL_", "enable "},
        {"glDisable(GL_", "disable "},
        {"glActiveTextureARB(GL_TEXTURE0_ARB", "unit 0"},
        {"glActiveTextureARB(GL_TEXTURE1_ARB", "unit 1"},
        {"glBindTexture(GL_TEXTURE_2D, ", "bind "},
        {"glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_", ""},
        {"glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_", ""},
        {"glTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_", ""},
        {"glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_", "get "},
        {"glGetTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_", "get "},
        {"glGetTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_", "get "},
    };
    std::string text;
    for (std::string call : gl_recorder::takeCalls()) {
        for (const auto& [start, word] : shorter)
            if (call.starts_with(start))
                call = word + call.substr(start.size(), call.size() - start.size() - 1);
        text += (text.empty() ? "" : "; ") + call;
    }
    return text;
}

/// Shaders of every kind on a driver of so many units; the textures have the names 10 and 11.
struct MixedPool : LoadedPool {
    explicit MixedPool(std::uint32_t units)
        : LoadedPool("lit\n{\ntexture: 1 nearest linear clamp repeat decal 1 0 0 1\n"
                     "blend: one, zero\n}\n"
                     "layered\n{\nmultitexture: 2 2 linear nearest repeat clamp modulate 0 0 0 0 "
                     "1 nearest nearest clamp clamp blend 0 1 0 0\n}\n"
                     "tinted\n{\ncolor: 1 0.5 0 1\n}\n"
                     "deep\n{\nmultitexture: 3 -1 linear nearest repeat clamp modulate 0 0 0 0 "
                     "1 linear linear repeat repeat decal 0 0 0 0 "
                     "1 linear linear repeat repeat decal 0 0 0 0\n}\n")
    {
        beginContext();
        renderer.multitextureAvailable = units > 1;
        renderer.glActiveTextureARB = units > 1 ? gl_recorder::activeTexture : nullptr;
        renderer.textureUnits = units;
        TexturePool textures;
        textures.resize(2);
        textures.textures[0].glName = 10;
        textures.textures[1].glName = 11;
        pool.resolve(textures);
        pool.resolve(TexturePool()); // changes nothing
        gl_recorder::reset();
    }

    ~MixedPool() { beginContext(); }
};

const std::string sendLit =
    "bind 11; MAG_FILTER, GL_LINEAR; MIN_FILTER, GL_NEAREST; WRAP_S, GL_CLAMP; "
    "WRAP_T, GL_REPEAT; ENV_MODE, GL_DECAL; ENV_COLOR, 1, 0, 0, 1";
const std::string sendFirst =
    "bind 10; MAG_FILTER, GL_NEAREST; MIN_FILTER, GL_LINEAR; WRAP_S, GL_REPEAT; "
    "WRAP_T, GL_CLAMP; ENV_MODE, GL_MODULATE; ENV_COLOR, 0, 0, 0, 0";
const std::string sendSecond =
    "bind 11; MAG_FILTER, GL_NEAREST; MIN_FILTER, GL_NEAREST; WRAP_S, GL_CLAMP; "
    "WRAP_T, GL_CLAMP; ENV_MODE, GL_BLEND; ENV_COLOR, 0, 1, 0, 0";
const std::string get = "; get MAG_FILTER; get MIN_FILTER; get WRAP_S; get WRAP_T; get ENV_MODE; "
                        "get ENV_COLOR";

/// Shows each shader of the pool for two frames. What is expected of a shader are its calls when
/// it is new, when it comes again, and in its second frame.
void expectFrames(std::uint32_t units, const std::array<std::string, 3> (&expected)[4])
{
    const MixedPool mixed(units);
    for (std::uint32_t frame = 0; frame < 130; ++frame) {
        const std::uint32_t shader = frame / 2 % mixed.pool.count;
        mixed.pool[shader].apply();
        const std::size_t time = frame % 2 != 0 ? 2 : frame / 2 != shader ? 1 : 0;
        EXPECT_EQ(calls(), expected[shader][time]) << frame;
    }
}

} // namespace

TEST(Shader, MakesTheCallsThatAMixedPoolNeedsAndSaysOnceWhatIsLeftOut)
{
    glCaches = {};
    testing::internal::CaptureStderr();
    const std::string factors = "; glBlendFunc(GL_ONE, GL_ZERO)", opaque = "disable BLEND";
    const std::string tint = "; glColor4fv(1, 0.5, 0, 1)", white = "; glColor4fv(1, 1, 1, 1)";
    const std::string second = opaque + "; unit 1; enable TEXTURE_2D";
    const std::string off =
        opaque + "; unit 1; disable TEXTURE_2D; unit 0; unit 0; disable TEXTURE_2D";
    const std::string on = "; unit 0; enable TEXTURE_2D";
    expectFrames(2,
                 {{"enable BLEND" + on + "; " + sendLit + factors,
                   "enable BLEND; bind 11" + factors, "enable BLEND" + factors},
                  {second + "; unit 1; " + sendSecond + "; unit 0; " + sendFirst,
                   second + "; unit 0; bind 10", opaque},
                  {off + tint, off + tint, opaque + tint},
                  {opaque + white + on + "; unit 0; " + sendFirst, opaque + white + on, opaque}});
    expectFrames(1, {{"enable BLEND; enable TEXTURE_2D; " + sendLit + factors,
                      "enable BLEND; bind 11" + factors, "enable BLEND" + factors},
                     {opaque + "; " + sendFirst, opaque + "; bind 10", opaque},
                     {opaque + "; disable TEXTURE_2D" + tint,
                      opaque + "; disable TEXTURE_2D" + tint, opaque + tint},
                     {opaque + white + "; enable TEXTURE_2D; " + sendFirst,
                      opaque + white + "; enable TEXTURE_2D", opaque}});
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "quazo: too few texture units: only the first of several textures is shown\n");
}

TEST(Shader, StartsAsOpenGlDoesSharesItsLayersAndIsFollowedByWhite)
{
    const std::string zeros = "<0.000000, 0.000000, 0.000000, 0.000000>\n";
    const std::string state =
        "0, nearest_mipmap_linear, linear, repeat, repeat, modulate, " + zeros;
    Shader mixed, copy, plain;
    mixed.addLayer(std::make_unique<MultitextureLayer>(1));
    EXPECT_FALSE(mixed.hasTexture); // the parser sets it
    mixed.addLayer(std::make_unique<TextureLayer>());
    plain.addLayer(std::make_unique<BlendLayer>());
    mixed.addLayer(std::make_unique<BlendLayer>());
    mixed.addLayer(std::make_unique<ColorLayer>());
    mixed.name = "mixed";
    copy = mixed;
    copy = std::as_const(copy);
    mixed.addLayer(std::make_unique<BlendLayer>());
    EXPECT_TRUE(textOf(copy).starts_with("mixed btc\n{ multitexture: 1, 0,"));
    EXPECT_TRUE(textOf(mixed).starts_with(textOf(copy).substr(0, textOf(copy).size() - 2)));
    gl_recorder::reset();
    gl_recorder::answer(GL_BLEND_SRC, GL_DST_COLOR);
    gl_recorder::answer(GL_BLEND_DST, GL_SRC_COLOR);
    copy.layers()[2]->readBack();
    std::string lines;
    for (const ShaderLayer* layer : mixed.layers())
        lines += output([&](std::FILE* out) { layer->write(out); }) + "\n";
    EXPECT_EQ(lines, "  multitexture: 1, " + state + "  texture: " + state +
                         "  blend: dst_color, src_color\n  color: " + zeros +
                         "  blend: one, zero\n");
    copy.apply();
    calls();
    plain.apply();
    EXPECT_EQ(calls(), "enable BLEND; glColor4fv(1, 1, 1, 1); disable TEXTURE_2D; "
                       "glBlendFunc(GL_ONE, GL_ZERO)");
}

TEST(MultitextureLayer, CopiesItsStagesButNotItsIndex)
{
    MultitextureLayer source(2), assigned(3);
    source.index = 7;
    source.prepared = true;
    source.stages[1] = {.index = 5, .state = {.glName = 9}};
    source.assign(source);
    assigned.assign(source);
    MultitextureLayer copied(source);
    for (const MultitextureLayer* layer : {&assigned, &copied}) {
        EXPECT_EQ(textOf(*layer), textOf(source));
        EXPECT_TRUE(layer->prepared && layer->stages[1].state.glName == 9 && layer->index == 0);
    }
}

TEST(ShaderLayer, ReappliesAndReadsBackPastTheCachesAndPrintsWhatHasAWord)
{
    const MixedPool mixed(2);
    const std::string first = "unit 1; disable TEXTURE_2D; unit 0; ";
    const std::tuple<std::uint32_t, void (ShaderLayer::*)(), std::string> steps[] = {
        {0, &ShaderLayer::readBack, ""}, // was never set
        {1, &ShaderLayer::reapply,
         "unit 1; enable TEXTURE_2D; unit 0; enable TEXTURE_2D; unit 0; " + sendFirst +
             "; unit 1; " + sendSecond},
        {0, &ShaderLayer::readBack, "unit 0"},
        {0, &ShaderLayer::apply, first + sendLit},
        {1, &ShaderLayer::apply, "unit 1; enable TEXTURE_2D; unit 1; bind 11; unit 0; bind 10"},
        {0, &ShaderLayer::reapply, first + sendLit},
        {1, &ShaderLayer::apply, "unit 1; enable TEXTURE_2D"},
        {1, &ShaderLayer::readBack, "bind 10" + get + "; bind 11" + get},
        {0, &ShaderLayer::readBack, "unit 0; bind 11" + get},
        {0, &ShaderLayer::readBack, "bind 11" + get},
    };
    for (const auto& [shader, step, expected] : steps) {
        gl_recorder::reset(); // what is read back is 0, which has no word
        (mixed.pool[shader].layers().front()->*step)();
        EXPECT_EQ(calls(), expected);
    }
    EXPECT_EQ(textOf(*mixed.pool[1].layers().front()),
              "multitexture: 2, 2, <0.0000, 0.0000, 0.0000, 0.0000>, 1, <0.0000, 0.0000, 0.0000, "
              "0.0000>");
}
