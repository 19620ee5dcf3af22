#pragma once

#include "zrk/cexception.h"

#include <cstddef>
#include <memory>
#include <new>
#include <utility>

namespace zrk {

/// A value-initialised array of `count` elements, owned by the caller. No memory, or a count
/// that no memory could ever hold, is `Cexception`.
template <typename Element>
std::unique_ptr<Element[]> newArray(std::size_t count)
try {
    return std::unique_ptr<Element[]>(new Element[count]());
} catch (const std::bad_alloc&) {
    throw Cexception();
}

/// A new object, owned by the caller. No memory is `Cexception`.
template <typename Object, typename... Arguments>
std::unique_ptr<Object> newObject(Arguments&&... arguments)
try {
    return std::unique_ptr<Object>(new Object(std::forward<Arguments>(arguments)...));
} catch (const std::bad_alloc&) {
    throw Cexception();
}

} // namespace zrk
