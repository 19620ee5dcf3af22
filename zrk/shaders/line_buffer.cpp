#include "zrk/shaders/line_buffer.h"

#include "zrk/allocation.h"

#include <cassert>
#include <cstddef>

namespace zrk {

namespace {

constexpr std::size_t lineBufferBytes = 16384;

constinit char* lineBufferStart = nullptr;

} // namespace

std::span<char> lineBuffer()
{
    assert(lineBufferStart != nullptr);
    return {lineBufferStart, lineBufferBytes};
}

void makeLineBuffer()
{
    if (lineBufferStart == nullptr)
        lineBufferStart = newArray<char>(lineBufferBytes).release();
}

} // namespace zrk
