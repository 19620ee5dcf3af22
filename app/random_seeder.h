#pragma once

#include <cstdlib>
#include <ctime>

/// Seeds the C library's random generator with the time, so that no two runs move alike. One
/// lives for the length of the run.
class RandomSeeder {
public:
    RandomSeeder() { std::srand(static_cast<unsigned int>(std::time(nullptr))); }
    virtual ~RandomSeeder() = default;
    RandomSeeder(const RandomSeeder&) = delete;
    RandomSeeder& operator=(const RandomSeeder&) = delete;
};
