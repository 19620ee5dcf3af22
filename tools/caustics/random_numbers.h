#pragma once

#include <cstdint>

namespace caustics {

/// A stream of random numbers that is the same wherever the program runs (the standard library's
/// distributions are not). A Weyl sequence, each term scrambled.
class RandomNumbers {
public:
    explicit RandomNumbers(std::uint64_t seed) : state(seed) {}

    /// A number in (0, 1): never an end, so that its logarithm exists.
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
