#include "zrk/shaders/keywords.h"

#include "tests/support/gl_recorder.h"
#include "tests/zrk/shaders/sample_pool.h"
#include "zrk/shaders/texture_units.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <set>
#include <sstream>
#include <vector>

using namespace zrk;
using namespace std::string_literals;

namespace {

/// A place for a word in a layer's line: what stands before and behind its name in OpenGL's call.
struct Place {
    std::string before, after, words;
};

const std::string factors = "zero one src_alpha one_minus_src_alpha dst_alpha one_minus_dst_alpha ";
const Place places[] = {
    {"MIN_FILTER, GL_", ")",
     "nearest linear nearest_mipmap_nearest linear_mipmap_nearest nearest_mipmap_linear "
     "linear_mipmap_linear"},
    {"MAG_FILTER, GL_", ")", "nearest linear"},
    {"WRAP_S, GL_", ")", "clamp repeat clamp_to_edge"},
    {"WRAP_T, GL_", ")", "clamp repeat clamp_to_edge"},
    {"ENV_MODE, GL_", ")", "replace modulate decal blend"},
    {"(GL_", ", ", factors + "dst_color one_minus_dst_color src_alpha_saturate"},
    {", GL_", ")", factors + "src_color one_minus_src_color"},
};

std::set<std::string> wordsOf(const std::string& list)
{
    std::istringstream stream(list);
    return std::set<std::string>(std::istream_iterator<std::string>(stream), {});
}

/// The lines with `word` at a place: two kinds of texture layers, or a blend layer.
std::vector<std::string> linesWith(std::size_t place, const std::string& word)
{
    std::string fields[] = {"linear", "nearest", "repeat", "clamp", "decal", "one", "zero"};
    fields[place] = word;
    if (place >= 5)
        return {"blend: " + fields[5] + ", " + fields[6]};
    const std::string state = "0, " + fields[0] + ", " + fields[1] + ", " + fields[2] + ", " +
                              fields[3] + ", " + fields[4] + ", <0.25, 1, 0.5, 0>";
    return {"texture: " + state, "multitexture: 2, " + state + ", " + state};
}

/// Sends the layer of `line` to OpenGL, reads it back into that of `otherLine`, and prints it.
void expectRoundTrip(const std::string& line, const std::string& call, const std::string& otherLine)
{
    const LoadedPool loaded = poolOf(line), other = poolOf(otherLine);
    ShaderLayer& layer = *loaded.pool[0].layers().front();
    other.pool[0].apply();
    gl_recorder::reset();
    layer.reapply();
    const auto calls = gl_recorder::takeCalls();
    EXPECT_NE(std::accumulate(calls.begin(), calls.end(), ""s).find(call), std::string::npos)
        << line;
    other.pool[0].layers().front()->readBack();
    EXPECT_EQ(other.summary(), loaded.summary());
    EXPECT_EQ(LoadedPool(loaded.summary()).summary(), loaded.summary());
}

} // namespace

TEST(Keywords, AreTakenInTheirPlacesAloneReachOpenGlAndComeBack)
{
    glCaches = {.shortageReported = true};
    std::set<std::string> words{"bool", "true", "texture", "multitexture", "color", "Linear"};
    for (const Place& place : places)
        words.merge(wordsOf(place.words));
    for (std::size_t i = 0; i < std::size(places); ++i) {
        const std::set<std::string> accepted = wordsOf(places[i].words);
        for (const std::string& word : words) {
            std::string name = word;
            std::ranges::transform(word, name.begin(), toupper);
            const auto lines = linesWith(i, word), others = linesWith(i, *accepted.begin());
            for (std::size_t kind = 0; kind < lines.size(); ++kind)
                if (accepted.contains(word))
                    expectRoundTrip(lines[kind], places[i].before + name + places[i].after,
                                    others[kind]);
                else
                    EXPECT_EQ(poolOf(lines[kind]).result, ShaderResult::unknownParameter) << word;
        }
    }
}
