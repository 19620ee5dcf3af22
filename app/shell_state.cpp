#include "app/shell_state.h"

constinit std::array<bool, 256> keyDown{};
constinit bool windowActive = true;
constinit std::int32_t windowWidth = 800;
constinit std::int32_t windowHeight = 600;
constinit float animationTime = 0.0f;
