#include "zrk/shaders/shader.h"

#include "tests/support/gl_recorder.h"
#include "tests/zrk/shaders/sample_pool.h"
#include "zrk/renderer.h"
#include "zrk/shaders/blend_layer.h"
#include "zrk/shaders/layer_registry.h"
#include "zrk/shaders/texture_units.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <optional>
#include <span>
#include <sstream>

using namespace zrk;

namespace {

/// A driver of so many units, to which nothing was said yet.
void setUnits(std::uint32_t units)
{
    glCaches = {.shortageStated = glCaches.shortageStated};
    renderer.multitextureAvailable = units > 1;
    renderer.glActiveTextureARB = units > 1 ? gl_recorder::activeTexture : nullptr;
    renderer.textureUnits = units;
    gl_recorder::reset();
}

/// Texture 0 has the name 10, texture 1 the name 11.
void resolve(ShaderPool& pool)
{
    TexturePool textures;
    pool.resolve(textures); // empty: changes nothing
    textures.resize(2);
    textures.textures[0].glName = 10;
    textures.textures[1].glName = 11;
    pool.resolve(textures);
}

/// The steps of `expected`, each followed by the calls that it makes in truth.
std::string trace(const std::string& poolText, const std::string& expected)
{
    std::optional<LoadedPool> loaded;
    std::istringstream lines(expected);
    std::string text, verb, object;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(' '))
            continue;
        text += line + "\n";
        std::istringstream(line) >> verb >> object;
        if (verb == "units") {
            loaded.emplace(poolText);
            resolve(loaded->pool);
            setUnits(static_cast<std::uint32_t>(std::stoul(object)));
            continue;
        }
        const Shader& shader = *std::ranges::find_if(
            std::span(loaded->pool.shaders.get(), loaded->pool.count),
            [&](const Shader& each) { return object == each.name.cString(); });
        if (verb == "apply")
            shader.apply();
        else
            verb == "reapply" ? shader.layers().front()->reapply()
                              : shader.layers().front()->readBack();
        for (const std::string& call : gl_recorder::takeCalls())
            text += "    " + call + "\n";
    }
    return text;
}

} // namespace

TEST(Shader, MakesTheCallsThatAMixedPoolNeedsAndSaysOnceWhatIsLeftOut)
{
    glCaches = {};
    testing::internal::CaptureStderr();
    for (const auto& [pool, expected] : pairsIn("frames.txt"))
        EXPECT_EQ(trace(pool, expected), expected);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "quazo: no multitexture: of several textures only the first is shown\n");
}

TEST(LayerRegistry, DeletesTheLayersInTheOrderOfAdding)
{
    static std::vector<int> deleted;
    struct Marked : BlendLayer {
        ~Marked() override { deleted.push_back(index); }
    };
    std::vector<int> added(100000); // a recursion of as many would overflow the stack
    std::iota(added.begin(), added.end(), 0);
    {
        LayerRegistry registry;
        for (const int mark : added) {
            auto layer = std::make_unique<Marked>();
            layer->index = mark;
            registry.add(std::move(layer));
        }
    }
    EXPECT_EQ(deleted, added);
}
