#pragma once

#include "zrk/shaders/shader_layer.h"
#include "zrk/shaders/shader_pool.h"
#include "zrk/textures/texture_pool.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A shaders pool loaded from a text, and the shaders that it owns.
struct LoadedPool {
    zrk::ShaderPool pool;
    zrk::ShaderResult result{};
    std::string log; ///< Of the last load, less "Loading NAME... ", which a missing one shows.

    explicit LoadedPool(std::string_view text) { load(text); }

    void load(std::string_view text);

    /// Every shader as a line: its name, a letter for each flag (b, t, c), and its layers, each
    /// ended by a semicolon.
    std::string summary() const;
};

/// A pool of one shader, "sample", which holds the layers that `lines` describe.
LoadedPool poolOf(const std::string& lines);

std::string textOf(const zrk::ShaderLayer& layer);
std::string printed(const zrk::ShaderLayer& layer);

/// The pairs of a data file beside the tests: what is given and what is expected of it, with a
/// line "--" between them and a line "==" after each pair.
std::vector<std::pair<std::string, std::string>> pairsIn(const char* dataFile);

/// A layer's line with a "*", a word that may stand there, and the call that sends its value.
struct AcceptedWord {
    std::string pattern, word, call;

    std::string line() const { return lineWith(word); }
    std::string lineWith(const std::string& anyWord) const;
};

/// Every word of every position.
std::vector<AcceptedWord> acceptedWords();
