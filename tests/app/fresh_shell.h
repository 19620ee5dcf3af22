#pragma once

#include "tests/support/temporary_directory.h"

#include <functional>
#include <optional>
#include <string>

/// The shell as the program starts with it, on a headless desktop and with recorded OpenGL. What
/// the test leaves open is closed after it.
class FreshShell {
public:
    FreshShell();
    FreshShell(const FreshShell&) = delete;
    FreshShell& operator=(const FreshShell&) = delete;
    ~FreshShell();

    /// Makes a Windows directory with the data set: three textures, and the `shaders` pool file.
    void makeData(const std::string& shaders);

    bool refuseDeviceContexts = false;

    /// Called after every swap of the buffers, with how many there were.
    std::function<void(int swaps)> onSwap = [](int) {};

private:
    std::optional<TemporaryDirectory> windowsDirectory;
};

/// What was asked of the desktop, and of OpenGL, since the last time, with "; " after each.
std::string requests();
std::string glCalls();
