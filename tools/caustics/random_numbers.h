#pragma once

#include <cstdint>

namespace caustics {

/// The SplitMix64 generator. Its numbers are the same on every system, which the distributions of
/// the standard library do not promise.
class RandomNumbers {
public:
    explicit RandomNumbers(std::uint64_t seed) : state(seed) {}

    /// Uniform in (0, 1), without the ends, so that the logarithm is finite.
    double next()
    {
        state += 0x9e3779b97f4a7c15U;
        std::uint64_t bits = state;
        bits = (bits ^ (bits >> 30U)) * 0xbf58476d1ce4e5b9U;
        bits = (bits ^ (bits >> 27U)) * 0x94d049bb133111ebU;
        bits ^= bits >> 31U;
        return (static_cast<double>(bits >> 12U) + 0.5) * 0x1p-52;
    }

private:
    std::uint64_t state;
};

} // namespace caustics
