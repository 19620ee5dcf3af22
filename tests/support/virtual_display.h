#pragma once

#include "tests/support/child_process.h"

/// An X server of the test's own, without a screen to look at, which `DISPLAY` names from here on.
/// Throws `std::runtime_error` when none comes up.
class VirtualDisplay {
public:
    /// `screen` is width, height and depth in Xvfb's writing.
    explicit VirtualDisplay(const char* screen = "1280x1024x24");

    /// Lets the server take its socket and its lock with it.
    ~VirtualDisplay();

private:
    ChildProcess server;
};
