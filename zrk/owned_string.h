#pragma once

#include <cstdint>
#include <memory>

namespace zrk {

/// An owned string and its size. Throws `Cexception` when an allocation fails, and keeps its value
/// then.
class String {
public:
    String();
    String(const String&) = delete;
    String& operator=(const String& other);

    /// Copies `text`; a null pointer gives "".
    String& operator=(const char* text);

    /// Appends `text`, which may point into this string; a null pointer clears the string.
    String& operator+=(const char* text);

    void clear();

    void swap(String& other) noexcept;

    const char* cString() const { return data.get(); }

    /// Number of bytes including the terminating NUL: 1 for "".
    std::uint32_t bytes() const { return size; }

private:
    std::uint32_t size;
    std::unique_ptr<char[]> data;
};

} // namespace zrk
