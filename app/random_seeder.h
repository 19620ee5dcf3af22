#pragma once

#include <cstdlib>
#include <ctime>

/// Seeds the C library's random generator with the time in seconds, so that each run has motions of
/// its own. The entry holds one for the length of the run.
class RandomSeeder {
public:
    RandomSeeder() { std::srand(static_cast<unsigned int>(std::time(nullptr))); }
    virtual ~RandomSeeder() = default;
    RandomSeeder(const RandomSeeder&) = delete;
    RandomSeeder& operator=(const RandomSeeder&) = delete;
};
