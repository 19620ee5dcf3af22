#pragma once

#include "platform/desktop.h"

#include <cstdio>
#include <cstdlib>

/// A current OpenGL context for a window that is never shown, on the display that `DISPLAY` names.
/// Exits with status 1 where there is none. Link platform_x11.
class GlTestContext {
public:
    explicit GlTestContext(platform::desktop::Size size)
    {
        using namespace platform::desktop;
        const NativeWindow window = createWindow("", 0, 0, size);
        if (makeCurrent(window, createContext(window)))
            return;
        std::fputs("no OpenGL to test with\n", stderr);
        std::exit(1);
    }
    GlTestContext(const GlTestContext&) = delete;
    GlTestContext& operator=(const GlTestContext&) = delete;
    ~GlTestContext() { platform::desktop::disconnect(); }
};
