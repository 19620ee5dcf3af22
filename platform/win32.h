#pragma once

// What the shell includes: the system's own header on Windows, ours elsewhere.
#ifdef _WIN32
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#undef far
#undef near
#else
#include "platform/win32_names.h"
#endif
