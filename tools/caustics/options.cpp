#include "tools/caustics/options.h"

#include <charconv>
#include <cstring>
#include <ostream>
#include <string_view>

namespace caustics {

const char* const helpText =
    "Usage: make_caustics [options] <directory>\n"
    "Computes the caustics on the floor of a pool, wraps them on spheres, and writes them to\n"
    "<directory>/###quazo!_data###/ with the text files that the saver reads.\n"
    "\n"
    "  --seed <number>     chooses the waves; equal seeds give equal files (default 13)\n"
    "  --size <texels>     the side of an image, 16 to 512 (default 512)\n"
    "  --threads <number>  1 to 64 (default: one per processor)\n"
    "  --help              shows this text\n"
    "\n"
    "Exit status: 0 when all files are written, 1 when they cannot be, 2 for a wrong call.\n";

namespace {

/// An option with a whole number: its range, and the field that it sets.
struct NumberOption {
    const char* name;
    std::uint64_t least;
    std::uint64_t most;
    void (*store)(Options&, std::uint64_t);
};

constexpr NumberOption numberOptions[] = {
    {"--seed", 0, UINT64_MAX, [](Options& options, std::uint64_t value) { options.seed = value; }},
    {"--size", 16, 512,
     [](Options& options, std::uint64_t value) { options.size = static_cast<int>(value); }},
    {"--threads", 1, 64,
     [](Options& options, std::uint64_t value) { options.threads = static_cast<int>(value); }},
};

const NumberOption* optionNamed(const char* name)
{
    for (const NumberOption& option : numberOptions)
        if (std::strcmp(option.name, name) == 0)
            return &option;
    return nullptr;
}

bool storeNumber(const NumberOption& option, std::string_view text, Options& options)
{
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < option.least ||
        value > option.most)
        return false;
    option.store(options, value);
    return true;
}

} // namespace

std::optional<Options> readOptions(std::span<const char* const> arguments, std::ostream& errors)
{
    const auto refuse = [&errors](const auto&... parts) {
        ((errors << "make_caustics: ") << ... << parts) << "; see --help\n";
        return std::nullopt;
    };
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const char* const argument = arguments[i];
        if (std::strcmp(argument, "--help") == 0) {
            options.help = true;
            return options;
        }
        if (const NumberOption* const option = optionNamed(argument)) {
            const char* const value = ++i < arguments.size() ? arguments[i] : "";
            if (!storeNumber(*option, value, options))
                return refuse(argument, " wants a number from ", option->least, " to ",
                              option->most, ", not '", value, "'");
        } else if (argument[0] == '-') {
            return refuse("unknown option '", argument, "'");
        } else if (!options.directory.empty()) {
            return refuse("more than one directory: '", argument, "'");
        } else {
            options.directory = argument;
        }
    }
    if (options.directory.empty())
        return refuse("no directory given");
    return options;
}

} // namespace caustics
