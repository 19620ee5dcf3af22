#include "platform/x11/xwayland.h"

#include "platform/x11/randr.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

namespace platform::x11 {

namespace {

using Output = std::unique_ptr<XRROutputInfo, decltype(&XRRFreeOutputInfo)>;

bool hasXwaylandOutput(Display* display)
{
    const ScreenResources resources = screenResources(display);
    if (resources == nullptr)
        return false;
    const std::span outputs(resources->outputs, static_cast<std::size_t>(resources->noutput));
    return std::any_of(outputs.begin(), outputs.end(), [&](RROutput id) {
        const Output output(XRRGetOutputInfo(display, resources.get(), id), &XRRFreeOutputInfo);
        return output != nullptr && std::string_view(output->name).starts_with("XWAYLAND");
    });
}

} // namespace

// Newer versions say it by an extension and give their outputs the compositor's names; older ones
// number their outputs XWAYLAND0, XWAYLAND1 and so on.
bool isXwayland(Display* display)
{
    int opcode = 0, event = 0, error = 0;
    return XQueryExtension(display, "XWAYLAND", &opcode, &event, &error) != False ||
           hasXwaylandOutput(display);
}

} // namespace platform::x11
