#include "platform/x11/server_image.h"

#include "platform/x11/display.h"

#include <X11/Xutil.h>

#include <algorithm>
#include <bit>
#include <memory>
#include <span>
#include <sys/ipc.h>
#include <sys/shm.h>

namespace platform::x11 {

namespace {

constexpr int nativeOrder = std::endian::native == std::endian::big ? MSBFirst : LSBFirst;
constexpr int bitsPerPixel = 32;

// Attaches new memory to this process and to the server, and marks it for removal, so that it goes
// with the last of the two however they end. False when either cannot be done; a server at the
// other end of a network refuses.
bool attach(Display* display, XShmSegmentInfo& segment, std::size_t bytes)
{
    segment.shmid = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    if (segment.shmid < 0)
        return false;
    void* const memory = shmat(segment.shmid, nullptr, 0);
    const bool ours = memory != reinterpret_cast<void*>(-1);
    XErrorTrap trap(display);
    if (ours) {
        segment.shmaddr = static_cast<char*>(memory);
        segment.readOnly = True;
        XShmAttach(display, &segment);
    }
    const bool shared = ours && trap.firstError() == 0;
    shmctl(segment.shmid, IPC_RMID, nullptr);
    if (ours && !shared) {
        shmdt(memory);
        segment.shmaddr = nullptr;
    }
    return shared;
}

} // namespace

bool ServerImage::isOffered(Display* display)
{
    int count = 0;
    const std::unique_ptr<XPixmapFormatValues, decltype(&XFree)> formats(
        XListPixmapFormats(display, &count), &XFree);
    const std::span known(formats.get(), static_cast<std::size_t>(count));
    return std::any_of(known.begin(), known.end(), [](const XPixmapFormatValues& format) {
        return format.depth == depth && format.bits_per_pixel == bitsPerPixel;
    });
}

ServerImage::ServerImage(Display* display, desktop::Size size) : server(display)
{
    if (share(size))
        return;
    ownRows.resize(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
    image =
        XCreateImage(server, nullptr, depth, ZPixmap, 0, reinterpret_cast<char*>(ownRows.data()),
                     static_cast<unsigned int>(size.width), static_cast<unsigned int>(size.height),
                     bitsPerPixel, 0);
    image->byte_order = nativeOrder;
}

bool ServerImage::share(desktop::Size size)
{
    if (XShmQueryExtension(server) == False)
        return false;
    image = XShmCreateImage(server, nullptr, depth, ZPixmap, nullptr, &segment,
                            static_cast<unsigned int>(size.width),
                            static_cast<unsigned int>(size.height));
    const std::size_t bytes =
        static_cast<std::size_t>(image->bytes_per_line) * static_cast<std::size_t>(image->height);
    if (image->byte_order == nativeOrder && attach(server, segment, bytes)) {
        image->data = segment.shmaddr;
        return true;
    }
    XDestroyImage(image);
    return false;
}

// XDestroyImage would free the rows too.
ServerImage::~ServerImage()
{
    image->data = nullptr;
    XDestroyImage(image);
    if (segment.shmaddr == nullptr)
        return;
    XShmDetach(server, &segment);
    shmdt(segment.shmaddr);
}

std::uint32_t* ServerImage::pixels()
{
    return reinterpret_cast<std::uint32_t*>(image->data);
}

void ServerImage::put(Drawable target, GC context)
{
    const auto width = static_cast<unsigned int>(image->width);
    const auto height = static_cast<unsigned int>(image->height);
    if (segment.shmaddr != nullptr)
        XShmPutImage(server, target, context, image, 0, 0, 0, 0, width, height, False);
    else
        XPutImage(server, target, context, image, 0, 0, 0, 0, width, height);
}

} // namespace platform::x11
