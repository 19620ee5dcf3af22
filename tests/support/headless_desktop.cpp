#include "tests/support/headless_desktop.h"

#include <cstdint>
#include <deque>
#include <iomanip>
#include <set>
#include <sstream>
#include <utility>

namespace {

using namespace platform::desktop;

struct State {
    Size size{1024, 768};
    POINT pointer{};
    std::deque<Message> script;
    std::set<std::string> failing;
    std::vector<std::string> requests;
    std::uintptr_t newestWindow = 0, newestContext = 0;
    std::set<std::uintptr_t> windows, contexts;
};

State state;

/// Writes a request down, its parameters separated by commas; false when it is to fail.
template <typename... Parameters>
bool request(const std::string& name, const Parameters&... parameters)
{
    std::ostringstream line;
    line << name << '(';
    [[maybe_unused]] const char* separator = "";
    ((line << separator << parameters, separator = ", "), ...);
    line << ')';
    state.requests.push_back(line.str());
    return !state.failing.contains(name);
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

void setSize(Size size)
{
    state.size = size;
}

void setPointer(POINT position)
{
    state.pointer = position;
}

void play(UINT message, WPARAM wParam, LPARAM lParam)
{
    state.script.push_back({.window = state.newestWindow,
                            .message = message,
                            .wParam = wParam,
                            .lParam = lParam,
                            .pointer = {}});
}

void playMouse(UINT message, POINT pointer)
{
    play(message);
    state.script.back().pointer = pointer;
}

void fail(const std::string& name)
{
    state.failing.insert(name);
}

std::vector<std::string> takeRequests()
{
    return std::exchange(state.requests, {});
}

std::size_t thingsLeft()
{
    return state.windows.size() + state.contexts.size();
}

} // namespace headless_desktop

namespace platform::desktop {

bool size(Size& result)
{
    result = state.size;
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
    return true;
}

void disconnect()
{
    request("disconnect");
    state.windows.clear();
    state.contexts.clear();
}

NativeWindow createWindow(const char* title, int x, int y, Size client)
{
    if (!request("createWindow", std::quoted(title), x, y, client.width, client.height))
        return 0;
    state.windows.insert(++state.newestWindow);
    return state.newestWindow;
}

bool destroyWindow(NativeWindow window)
{
    if (!request("destroyWindow", window))
        return false;
    state.windows.erase(window);
    return true;
}

void showWindow(NativeWindow window)
{
    request("showWindow", window);
}

void raiseWindow(NativeWindow window)
{
    request("raiseWindow", window);
}

void focusWindow(NativeWindow window)
{
    request("focusWindow", window);
}

bool placeWindow(NativeWindow window, int x, int y, Size client, bool topmost)
{
    return request("placeWindow", window, x, y, client.width, client.height,
                   topmost ? "topmost" : "normal");
}

void showPointer(NativeWindow window, bool visible)
{
    request("showPointer", window, visible ? "visible" : "hidden");
}

int choosePixelFormat(NativeWindow window, const PIXELFORMATDESCRIPTOR& descriptor)
{
    return request("choosePixelFormat", window, int{descriptor.cColorBits}) ? 1 : 0;
}

bool setPixelFormat(NativeWindow window, int format)
{
    return request("setPixelFormat", window, format);
}

NativeContext createContext(NativeWindow window)
{
    if (!request("createContext", window))
        return nullptr;
    state.contexts.insert(++state.newestContext);
    return reinterpret_cast<NativeContext>(state.newestContext);
}

bool makeCurrent(NativeWindow window, NativeContext context)
{
    return request("makeCurrent", window, numberOf(context));
}

bool deleteContext(NativeContext context)
{
    if (!request("deleteContext", numberOf(context)))
        return false;
    state.contexts.erase(numberOf(context));
    return true;
}

bool swapBuffers(NativeWindow window)
{
    return request("swapBuffers", window);
}

PROC glProcedure(const char* name)
{
    request("glProcedure", name);
    return nullptr;
}

void messageBox(const char* text, const char* caption, UINT type, int /*endDescriptor*/)
{
    request("messageBox", std::quoted(text), std::quoted(caption), type);
}

void setScreenSaverRunning(bool running)
{
    request("setScreenSaverRunning", running ? "true" : "false");
}

} // namespace platform::desktop
