#include "tests/support/headless_desktop.h"

#include "tests/support/call_text.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <iomanip>
#include <set>
#include <utility>

namespace {

using namespace platform::desktop;

struct State {
    POINT pointer{};
    std::deque<Message> script;
    std::set<std::string> failing;
    std::size_t untilFailure = 0; // 0: none is to fail
    std::vector<std::string> requests;
    std::uintptr_t newestWindow = 0, newestContext = 0;
};

State state;

/// Records a request; false when it is to fail.
template <typename... Parameters>
bool request(const std::string& name, const Parameters&... parameters)
{
    state.requests.push_back(callText(name, parameters...));
    const bool fails = state.untilFailure != 0 && --state.untilFailure == 0;
    return !fails && !state.failing.contains(name);
}

std::uintptr_t numberOf(NativeContext context)
{
    return reinterpret_cast<std::uintptr_t>(context);
}

} // namespace

namespace headless_desktop {

void reset()
{
    state = State();
}

void setPointer(POINT position)
{
    state.pointer = position;
}

void play(UINT message, WPARAM wParam, LPARAM lParam, POINT pointer)
{
    const auto window = std::max<NativeWindow>(state.newestWindow, 1);
    state.script.push_back({window, message, wParam, lParam, pointer, {}});
}

void resize(Size client)
{
    play(WM_SIZE, SIZE_RESTORED);
    state.script.back().client = client;
}

void fail(const std::string& name)
{
    state.failing.insert(name);
}

void failAt(std::size_t ordinal)
{
    state.untilFailure = ordinal;
}

std::vector<std::string> takeRequests()
{
    return std::exchange(state.requests, {});
}

} // namespace headless_desktop

// Defines a function of the port that only records its request.
#define REQUESTED(result, function, signature, ...)                                                \
    result function signature                                                                      \
    {                                                                                              \
        return static_cast<result>(request(#function, __VA_ARGS__));                               \
    }

namespace platform::desktop {

REQUESTED(bool, destroyWindow, (NativeWindow window), window)
REQUESTED(void, showWindow, (NativeWindow window), window)
REQUESTED(void, raiseWindow, (NativeWindow window), window)
REQUESTED(void, focusWindow, (NativeWindow window), window)
REQUESTED(bool, placeWindow, (NativeWindow window, int x, int y, Size client, bool topmost), window,
          x, y, client.width, client.height, topmost ? "topmost" : "normal")
REQUESTED(void, showPointer, (NativeWindow window, bool visible), window,
          visible ? "visible" : "hidden")
REQUESTED(int, choosePixelFormat, (NativeWindow window, const PIXELFORMATDESCRIPTOR& descriptor),
          window, int{descriptor.cColorBits})
REQUESTED(bool, setPixelFormat, (NativeWindow window, int format), window, format)
REQUESTED(bool, makeCurrent, (NativeWindow window, NativeContext context), window,
          numberOf(context))
REQUESTED(bool, deleteContext, (NativeContext context), numberOf(context))
REQUESTED(bool, swapBuffers, (NativeWindow window), window)
REQUESTED(void, messageBox, (const char* text, const char* caption, UINT type, int),
          std::quoted(text), std::quoted(caption), type)
REQUESTED(void, setScreenSaverRunning, (bool running), running ? "true" : "false")

bool size(Size& result)
{
    result = {1024, 768};
    return request("size");
}

bool pointerPosition(POINT& result)
{
    result = state.pointer;
    return request("pointerPosition");
}

bool nextMessage(Message& result)
{
    if (state.script.empty())
        return false;
    result = state.script.front();
    state.script.pop_front();
    return result.message != 0;
}

Size toldSize(Size client)
{
    return client;
}

NativeWindow createWindow(const char* title, int x, int y, Size client)
{
    if (!request("createWindow", std::quoted(title), x, y, client.width, client.height))
        return 0;
    return ++state.newestWindow;
}

NativeContext createContext(NativeWindow window)
{
    if (!request("createContext", window))
        return nullptr;
    return reinterpret_cast<NativeContext>(++state.newestContext);
}

PROC glProcedure(const char* name)
{
    const PROC anyProcedure = [] { return std::intptr_t{0}; };
    return request("glProcedure", name) ? anyProcedure : nullptr;
}

} // namespace platform::desktop
