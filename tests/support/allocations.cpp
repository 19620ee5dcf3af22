#include "tests/support/allocations.h"

#include <cstdlib>
#include <new>

namespace {

constinit std::size_t given = 0;
constinit std::size_t untilFailure = 0; // 0: none is to fail

void* allocate(std::size_t size)
{
    if (untilFailure != 0 && --untilFailure == 0)
        throw std::bad_alloc();
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    ++given;
    return memory;
}

} // namespace

namespace allocations {

std::size_t count()
{
    return given;
}

Failure::Failure(std::size_t ordinal)
{
    untilFailure = ordinal;
}

Failure::~Failure()
{
    untilFailure = 0;
}

} // namespace allocations

void* operator new(std::size_t size)
{
    return allocate(size);
}

void* operator new[](std::size_t size)
{
    return allocate(size);
}

void* operator new(std::size_t size, const std::nothrow_t& /*unused*/) noexcept
try {
    return allocate(size);
} catch (const std::bad_alloc&) {
    return nullptr;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
