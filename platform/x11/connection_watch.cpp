#include "platform/x11/connection_watch.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace platform::x11 {

namespace {

constinit Display* server = nullptr;
constinit volatile std::sig_atomic_t watched = -1; // the connection's socket, once watching
constinit std::array<char, 32> event{};            // each event of the X protocol has 32 bytes
constinit std::size_t received = 0;                // of these

// Reads the socket itself: a signal handler must not call Xlib, which is done with this connection.
// Only _exit and recv, which are async-signal-safe.
void readEvents(int /*signal*/)
{
    const int savedError = errno;
    while (watched >= 0) {
        const ssize_t count =
            recv(watched, event.data() + received, event.size() - received, MSG_DONTWAIT);
        const bool closed = count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR);
        if (closed)
            _exit(0);
        if (count < 0)
            break;
        received = (received + static_cast<std::size_t>(count)) % event.size();
        constexpr char typeBits = 0x7F; // the highest bit marks events of XSendEvent
        if (received == 0 && (event.front() & typeBits) == DestroyNotify)
            _exit(0);
    }
    errno = savedError;
}

void handleInputSignal()
{
    struct sigaction action = {};
    action.sa_handler = readEvents;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(SIGIO, &action, nullptr);
    sigset_t handled;
    sigemptyset(&handled);
    sigaddset(&handled, SIGIO);
    sigprocmask(SIG_UNBLOCK, &handled, nullptr);
}

} // namespace

bool openWatch()
{
    server = XOpenDisplay(nullptr);
    return server != nullptr;
}

void startWatch(::Window window)
{
    if (server == nullptr || watched >= 0)
        return;
    if (window != 0)
        XSelectInput(server, window, StructureNotifyMask);
    XSync(server, False); // after this nothing but events arrives
    XEvent destroyed;
    if (XCheckTypedEvent(server, DestroyNotify, &destroyed) != False)
        _exit(0);
    const int socket = ConnectionNumber(server);
    handleInputSignal();
    fcntl(socket, F_SETOWN, getpid());
    fcntl(socket, F_SETFL, fcntl(socket, F_GETFL) | O_ASYNC);
    received = 0;
    watched = socket;
    raise(SIGIO); // for what arrived before the signal was switched on
}

void closeWatch()
{
    if (server == nullptr)
        return;
    const int socket = ConnectionNumber(server);
    watched = -1;
    fcntl(socket, F_SETFL, fcntl(socket, F_GETFL) & ~O_ASYNC);
    XCloseDisplay(server);
    server = nullptr;
}

} // namespace platform::x11
