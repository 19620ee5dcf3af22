#pragma once

// What the shell includes: the system's own header on Windows, less the few calls that are ours
// there, and our own header elsewhere.
#ifdef _WIN32
#include <windows.h>
#undef far
#undef near

#include "platform/windows/shell_calls.h"
#else
#include "platform/win32_names.h"
#endif
