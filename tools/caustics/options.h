#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <span>

namespace caustics {

/// The settings of the command line.
struct Options {
    std::filesystem::path directory; // where the data set's folder goes
    std::uint64_t seed = 13;
    int size = 512;  // texels along a side of an image
    int threads = 0; // 0: as many as there are processors
    bool help = false;
};

extern const char* const helpText;

/// Reads the arguments that follow the program's name. A wrong call is one line on `errors` and
/// returns nothing.
std::optional<Options> readOptions(std::span<const char* const> arguments, std::ostream& errors);

} // namespace caustics
