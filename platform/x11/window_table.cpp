#include "platform/x11/window_table.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <poll.h>

namespace platform::x11 {

namespace {

constexpr std::size_t mostWindows = 4;
constinit std::array<WindowRecord, mostWindows> records{};

// Without GLX a window is still created, for its pixel format to be refused: the program then
// reports that and not a missing window.
WindowFormat windowFormat(Display* display)
{
    const int screen = DefaultScreen(display);
    WindowFormat format{};
    if (!chooseWindowFormat(display, screen, format))
        format = {nullptr, DefaultVisual(display, screen), DefaultDepth(display, screen), false};
    return format;
}

::Window makeWindow(Display* display, const WindowRequest& request, const WindowRecord& record)
{
    XSetWindowAttributes attributes{};
    attributes.colormap = record.colormap;
    // A window whose visual is not its parent's must have a border and background of its own.
    attributes.border_pixel = 0;
    attributes.background_pixel = 0; // black until the first frame
    attributes.event_mask = request.events;
    return XCreateWindow(display, request.parent, request.place.x, request.place.y,
                         static_cast<unsigned int>(request.client.width),
                         static_cast<unsigned int>(request.client.height), 0, record.format.depth,
                         InputOutput, record.format.visual,
                         CWColormap | CWBorderPixel | CWBackPixel | CWEventMask, &attributes);
}

// Other events stay in Xlib's queue, in order.
void awaitMapped(Display* display, ::Window window)
{
    using namespace std::chrono;
    const auto deadline = steady_clock::now() + seconds(1);
    XEvent event;
    while (XCheckTypedWindowEvent(display, window, MapNotify, &event) == False) {
        const auto left = duration_cast<milliseconds>(deadline - steady_clock::now()).count();
        pollfd server{ConnectionNumber(display), POLLIN, 0};
        if (left <= 0 || poll(&server, 1, static_cast<int>(left)) == 0)
            return;
    }
}

} // namespace

WindowRecord* addWindow(Display* display, const WindowRequest& request)
{
    const auto place = std::find_if(records.begin(), records.end(),
                                    [](const WindowRecord& record) { return record.id == 0; });
    if (place == records.end())
        return nullptr;
    place->format = windowFormat(display);
    place->colormap = XCreateColormap(display, request.parent, place->format.visual, AllocNone);
    place->client = request.client;
    place->id = makeWindow(display, request, *place);
    return &*place;
}

void mapWindow(Display* display, ::Window window)
{
    XMapWindow(display, window);
    awaitMapped(display, window);
}

// Flushed, because nothing else may be sent for long: the window is to vanish before a box appears.
void removeWindow(Display* display, WindowRecord& record)
{
    XDestroyWindow(display, record.id);
    XFreeColormap(display, record.colormap);
    XFlush(display);
    record = {};
}

void forgetWindows()
{
    records.fill({});
}

WindowRecord* findRecord(desktop::NativeWindow window)
{
    const auto found =
        std::find_if(records.begin(), records.end(), [window](const WindowRecord& record) {
            return record.id != 0 && record.id == window;
        });
    return found == records.end() ? nullptr : &*found;
}

std::span<WindowRecord> windowRecords()
{
    return records;
}

} // namespace platform::x11
