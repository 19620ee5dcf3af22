#pragma once

#include "zrk/cexception.h"

#include <cstddef>
#include <memory>
#include <new>
#include <utility>

namespace zrk {

/// Returns a new value-initialised array of `count` elements. Throws `Cexception` without memory,
/// and for a count that no array can have.
template <typename Element>
std::unique_ptr<Element[]> newArray(std::size_t count)
try {
    return std::unique_ptr<Element[]>(new Element[count]());
} catch (const std::bad_alloc&) {
    throw Cexception();
}

/// Returns a new object. Throws `Cexception` without memory.
template <typename Object, typename... Arguments>
std::unique_ptr<Object> newObject(Arguments&&... arguments)
try {
    return std::unique_ptr<Object>(new Object(std::forward<Arguments>(arguments)...));
} catch (const std::bad_alloc&) {
    throw Cexception();
}

} // namespace zrk
