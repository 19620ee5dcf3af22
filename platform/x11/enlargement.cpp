#include "platform/x11/enlargement.h"

#include <tuple>

namespace platform::x11 {

namespace {

// Where a pixel of the window lies in the picture, whose rows are stored from below: a row y of h
// is row h - y there. The edges of both fall together.
XTransform fromWindow(desktop::Size window, desktop::Size picture)
{
    const double x = static_cast<double>(picture.width) / window.width;
    const double y = static_cast<double>(picture.height) / window.height;
    return {{{XDoubleToFixed(x), 0, 0},
             {0, XDoubleToFixed(-y), XDoubleToFixed(picture.height)},
             {0, 0, XDoubleToFixed(1)}}};
}

} // namespace

bool Enlargement::isOffered(Display* display, const Visual* visual)
{
    int event = 0, error = 0, major = 0, minor = 0;
    return ServerImage::isOffered(display) &&
           XRenderQueryExtension(display, &event, &error) != False &&
           XRenderQueryVersion(display, &major, &minor) != 0 &&
           std::tuple(major, minor) >= std::tuple(0, 10) && // filters, and RepeatPad
           XRenderFindVisualFormat(display, visual) != nullptr;
}

Enlargement::Enlargement(Display* display, ::Window window, const Visual* visual,
                         desktop::Size picture)
    : server(display),
      size(picture),
      image(display, picture),
      pixmap(XCreatePixmap(display, window, static_cast<unsigned int>(picture.width),
                           static_cast<unsigned int>(picture.height), ServerImage::depth)),
      context(XCreateGC(display, pixmap, 0, nullptr))
{
    // Otherwise the filter would blend the outermost pixels with black.
    XRenderPictureAttributes attributes{};
    attributes.repeat = RepeatPad;
    source =
        XRenderCreatePicture(server, pixmap, XRenderFindStandardFormat(server, PictStandardRGB24),
                             CPRepeat, &attributes);
    XRenderSetPictureFilter(server, source, FilterBilinear, nullptr, 0);
    target =
        XRenderCreatePicture(server, window, XRenderFindVisualFormat(server, visual), 0, nullptr);
}

Enlargement::~Enlargement()
{
    XRenderFreePicture(server, target);
    XRenderFreePicture(server, source);
    XFreeGC(server, context);
    XFreePixmap(server, pixmap);
}

std::uint32_t* Enlargement::pixels()
{
    XSync(server, False);
    return image.pixels();
}

void Enlargement::show(desktop::Size window)
{
    XTransform transform = fromWindow(window, size);
    image.put(pixmap, context);
    XRenderSetPictureTransform(server, source, &transform);
    XRenderComposite(server, PictOpSrc, source, None, target, 0, 0, 0, 0, 0, 0,
                     static_cast<unsigned int>(window.width),
                     static_cast<unsigned int>(window.height));
    XFlush(server);
}

} // namespace platform::x11
