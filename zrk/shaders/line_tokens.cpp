#include "zrk/shaders/line_tokens.h"

#include "zrk/allocation.h"

#include <cassert>
#include <cstddef>
#include <cstring>

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

char* LineTokens::next(const char* delimiters)
{
    char* const token = rest + std::strspn(rest, delimiters);
    rest = token + std::strcspn(token, delimiters);
    if (rest == token)
        return nullptr;
    if (*rest != '\0')
        *rest++ = '\0';
    return token;
}

} // namespace zrk
