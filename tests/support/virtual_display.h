#pragma once

#include "tests/support/child_process.h"

/// An X server without a real screen, which `DISPLAY` names from here on. On it the saver draws
/// every pixel, at render scale 1, unless a test sets QUAZO_RENDER_SCALE to another. Throws
/// `std::runtime_error` when it does not start.
class VirtualDisplay {
public:
    /// `screen` is width, height and depth as Xvfb expects them.
    explicit VirtualDisplay(const char* screen = "1280x1024x24");

    /// Ends the server so that it removes its socket and lock file.
    ~VirtualDisplay();

private:
    ChildProcess server;
};
