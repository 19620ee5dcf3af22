#pragma once

/// Whether `name` is among `extensions`, a list with blanks between the names, as GL_EXTENSIONS
/// has it. A longer name that begins with `name` is another one.
[[nodiscard]] bool hasExtension(const char* extensions, const char* name);

/// Gives the `renderer` the entry point of GL_ARB_multitexture and the number of texture units, if
/// the driver has the extension and at least two units. Call it with a context current and before
/// the first shader is applied.
void obtainMultitexture();
