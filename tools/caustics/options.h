#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <span>

namespace caustics {

/// What the command line asks for.
struct Options {
    std::filesystem::path directory; // where the data set's folder goes
    std::uint64_t seed = 13;
    int size = 512;  // texels along a side of an image
    int threads = 0; // 0: as many as there are processors
    bool help = false;
};

extern const char* const helpText;

/// Reads the arguments that follow the program's name. If they make no sense, says why on
/// `errors`, in one line, and yields nothing.
std::optional<Options> readOptions(std::span<const char* const> arguments, std::ostream& errors);

} // namespace caustics
