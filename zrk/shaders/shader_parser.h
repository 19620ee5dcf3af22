#pragma once

#include "zrk/shaders/shader_result.h"

#include <cstdio>

namespace zrk {

class Shader;

/// Reads one block of a shaders pool file, its name line first, into the empty `shader`:
///
///     first
///     {
///       texture: 0, linear_mipmap_linear, linear, repeat, repeat, modulate, <0, 0, 0, 0>
///       blend: one, one
///     }
///
/// After a failure the shader keeps its name and the layers of earlier lines. Overwrites the
/// `lineBuffer`.
[[nodiscard]] ShaderResult parseShader(Shader& shader, std::FILE* file);

} // namespace zrk
