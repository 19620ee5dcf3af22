#include "tests/zrk/shaders/sample_pool.h"

#include "zrk/owned_string.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

using namespace zrk;

namespace {

/// What `print` writes to the stream that it is given.
template <typename Print>
std::string output(Print print)
{
    char* data = nullptr;
    std::size_t size = 0;
    std::FILE* stream = open_memstream(&data, &size);
    print(stream);
    std::fclose(stream);
    std::string text(data, size);
    std::free(data);
    return text;
}

std::string replaced(std::string pattern, const std::string& word)
{
    return pattern.replace(pattern.find('*'), 1, word);
}

} // namespace

void LoadedPool::load(std::string_view text)
{
    const int file = memfd_create("sample", MFD_CLOEXEC);
    if (write(file, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        std::abort();
    const std::string name = "/proc/self/fd/" + std::to_string(file);
    log = output([&](std::FILE* stream) { result = pool.load(name.c_str(), stream); });
    close(file);
    if (const std::string start = "Loading " + name + "... "; log.starts_with(start))
        log.erase(0, start.size());
}

std::string LoadedPool::summary() const
{
    std::string text;
    for (std::uint32_t i = 0; i < pool.count; ++i) {
        const Shader& shader = pool[i];
        text += std::string(shader.name.cString()) + "[" + (shader.hasBlend ? "b" : "") +
                (shader.hasTexture ? "t" : "") + (shader.hasColor ? "c" : "") + "]";
        for (const ShaderLayer* layer : shader.layers())
            text += " " + textOf(*layer) + ";";
        text += "\n";
    }
    return text;
}

LoadedPool poolOf(const std::string& lines)
{
    return LoadedPool("sample\n{\n" + lines + "\n}\n");
}

std::string textOf(const ShaderLayer& layer)
{
    String text;
    layer.toText(text);
    return text.cString();
}

std::string printed(const ShaderLayer& layer)
{
    return output([&](std::FILE* stream) { layer.write(stream); });
}

std::vector<std::pair<std::string, std::string>> pairsIn(const char* dataFile)
{
    std::vector<std::pair<std::string, std::string>> pairs;
    std::ifstream file(std::string(SHADER_TEST_DATA "/") + dataFile);
    std::string given, text;
    for (std::string line; std::getline(file, line);) {
        if (line == "--")
            given = std::exchange(text, {});
        else if (line == "==")
            pairs.emplace_back(given, std::exchange(text, {}));
        else
            text += line + "\n";
    }
    if (pairs.empty())
        throw std::runtime_error(std::string("nothing in ") + dataFile);
    return pairs;
}

std::string AcceptedWord::lineWith(const std::string& anyWord) const
{
    return replaced(pattern, anyWord);
}

std::vector<AcceptedWord> acceptedWords()
{
    std::vector<AcceptedWord> words;
    for (const auto& [pattern, expected] : pairsIn("words.txt")) {
        std::istringstream lines(expected);
        std::string call, word, value;
        std::getline(lines, call);
        while (lines >> word >> value)
            words.push_back({pattern, word, replaced(call, value)});
    }
    return words;
}
