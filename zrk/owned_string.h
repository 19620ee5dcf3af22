#pragma once

#include <cstdint>
#include <memory>

namespace zrk {

/// A text and its size, in an array of its own. Every change that needs memory and gets none is
/// `Cexception` and leaves the text as it was.
class String {
public:
    String();
    String(const String&) = delete;
    String& operator=(const String& other);

    /// Takes a copy of `text`; a null pointer gives "".
    String& operator=(const char* text);

    /// Puts `text`, which may be part of this string, at the end; a null pointer clears the
    /// string.
    String& operator+=(const char* text);

    void clear();

    const char* cString() const { return data.get(); }

    /// Bytes held, the terminating NUL included: 1 for "".
    std::uint32_t bytes() const { return size; }

private:
    std::uint32_t size;
    std::unique_ptr<char[]> data;
};

} // namespace zrk
