#include "tests/support/virtual_display.h"

#include "tests/support/user.h"

#include <csignal>
#include <cstdlib>
#include <stdexcept>

VirtualDisplay::VirtualDisplay(const char* screen)
    : server({QUAZO_XVFB, "-displayfd", "1", "-screen", "0", screen, "+extension", "GLX",
              "-nolisten", "tcp", "-noreset"})
{
    // The server chooses a free number and prints it as a line once it accepts connections.
    if (!User::waitUntil([this] { return server.standardOutput().ends_with('\n'); }))
        throw std::runtime_error("no virtual display: " + server.standardError());
    const std::string number = server.standardOutput();
    setenv("DISPLAY", (":" + number.substr(0, number.size() - 1)).c_str(), 1);
    setenv("QUAZO_RENDER_SCALE", "1", 0);
}

VirtualDisplay::~VirtualDisplay()
{
    server.signal(SIGTERM);
    server.wait();
}
