#pragma once

#include "surface/matrix4.h"
#include "zrk/owned_string.h"

#include <cstdint>

/// An object of the scene.
class Drawable {
public:
    zrk::String name;
    Matrix4 transform; ///< Object to world space.
    std::uint32_t flags = 0;

    Drawable() = default;
    Drawable(const Drawable&) = delete;
    Drawable& operator=(const Drawable&) = delete;
    virtual ~Drawable() = default;

    virtual bool query(std::int32_t argument) = 0;
    virtual void draw() = 0;

    /// The number of the kind of object.
    virtual std::int32_t kind() = 0;

    /// Recomputes what is derived from the settings.
    virtual void rebuild() = 0;
};
