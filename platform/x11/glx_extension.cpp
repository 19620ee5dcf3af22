#include "platform/x11/glx_extension.h"

#include <string>

namespace platform::x11 {

bool hasGlxExtension(Display* display, const char* name)
{
    const char* const known = glXQueryExtensionsString(display, DefaultScreen(display));
    const std::string offered = ' ' + std::string(known == nullptr ? "" : known) + ' ';
    return offered.find(' ' + std::string(name) + ' ') != std::string::npos;
}

} // namespace platform::x11
