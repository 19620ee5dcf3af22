#pragma once

#include "platform/desktop.h"

#include <X11/Xlib.h>

#include <X11/extensions/XShm.h> // includes nothing of what it needs

#include <cstdint>
#include <vector>

namespace platform::x11 {

/// A picture to be sent to the server: through shared memory where the server can reach ours,
/// otherwise through the connection. A pixel is 0x00RRGGBB, its depth 24.
class ServerImage {
public:
    static constexpr int depth = 24;

    /// Whether the server keeps pixels of this depth in 32 bits.
    [[nodiscard]] static bool isOffered(Display* display);

    ServerImage(Display* display, desktop::Size size);
    ~ServerImage();
    ServerImage(const ServerImage&) = delete;
    ServerImage& operator=(const ServerImage&) = delete;

    /// The rows, without gaps. The server may read them until it has handled all requests.
    [[nodiscard]] std::uint32_t* pixels();

    /// Sends the picture into a drawable of the same depth and size.
    void put(Drawable target, GC context);

private:
    bool share(desktop::Size size);

    Display* server;
    XImage* image = nullptr;
    XShmSegmentInfo segment{};          // shmaddr is null without shared memory
    std::vector<std::uint32_t> ownRows; // without shared memory
};

} // namespace platform::x11
