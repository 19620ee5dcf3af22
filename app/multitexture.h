#pragma once

/// True when `extensions`, names with blanks between them as OpenGL lists them, has `name` among
/// them: a longer name that only begins so does not count.
[[nodiscard]] bool hasExtension(const char* extensions, const char* name);

/// Gives the `renderer` the entry point that selects a texture unit and the number of units, where
/// the driver has the extension and at least two units. A context must be current, and no shader
/// applied yet.
void obtainMultitexture();
