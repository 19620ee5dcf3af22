#pragma once

#include "platform/x11/server_image.h"

#include <X11/extensions/Xrender.h>

namespace platform::x11 {

/// Shows pictures on a window, enlarged to its size by the server with a bilinear filter (the
/// RENDER extension). For software OpenGL that is a fraction of the price of drawing the pixels.
class Enlargement {
public:
    /// Whether the server can do that for windows of this visual.
    [[nodiscard]] static bool isOffered(Display* display, const Visual* visual);

    /// For pictures of this size on a window, if that is offered for its visual.
    Enlargement(Display* display, ::Window window, const Visual* visual, desktop::Size picture);
    ~Enlargement();
    Enlargement(const Enlargement&) = delete;
    Enlargement& operator=(const Enlargement&) = delete;

    /// The next picture, to be filled from its lowest row upwards. Waits until the server has read
    /// the one before, for which it had the time of a frame.
    [[nodiscard]] std::uint32_t* pixels();

    /// Puts it on the window, which has this size.
    void show(desktop::Size window);

private:
    Display* server;
    desktop::Size size;
    ServerImage image;
    Pixmap pixmap;
    GC context;
    Picture source, target;
};

} // namespace platform::x11
