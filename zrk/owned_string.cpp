#include "zrk/owned_string.h"

#include "zrk/allocation.h"

#include <cstring>
#include <utility>

namespace zrk {

namespace {

std::uint32_t bytesOf(const char* text)
{
    return static_cast<std::uint32_t>(std::strlen(text) + 1);
}

} // namespace

String::String() : size(1), data(newArray<char>(1)) {}

String& String::operator=(const String& other)
{
    return *this = other.cString();
}

String& String::operator=(const char* text)
{
    if (text == nullptr)
        text = "";
    // Copied before the old array is freed, in which `text` may lie.
    const std::uint32_t newSize = bytesOf(text);
    std::unique_ptr<char[]> copy = newArray<char>(newSize);
    std::memcpy(copy.get(), text, newSize);
    data = std::move(copy);
    size = newSize;
    return *this;
}

String& String::operator+=(const char* text)
{
    if (text == nullptr)
        return *this = "";
    const std::uint32_t added = bytesOf(text); // counts a terminator, as `size` does
    std::unique_ptr<char[]> both = newArray<char>(size - 1 + added);
    std::memcpy(both.get(), data.get(), size - 1);
    std::memcpy(both.get() + size - 1, text, added);
    data = std::move(both);
    size += added - 1;
    return *this;
}

void String::swap(String& other) noexcept
{
    std::swap(size, other.size);
    data.swap(other.data);
}

void String::clear()
{
    *this = "";
}

} // namespace zrk
