#pragma once

#include <cstddef>

/// Counts what `operator new` gives out in the whole program where it is linked, and refuses on
/// demand. Link the object library `allocations`.
namespace allocations {

/// Successful allocations since the program started.
std::size_t count();

/// While it lives, the `ordinal`-th allocation from its making on (1 is the next) finds no memory;
/// the others do. One at a time.
class Failure {
public:
    explicit Failure(std::size_t ordinal);
    Failure(const Failure&) = delete;
    Failure& operator=(const Failure&) = delete;
    ~Failure();
};

} // namespace allocations
