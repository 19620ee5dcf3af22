#pragma once

#include <chrono>

namespace platform {

/// From here on SIGTERM, SIGINT and SIGHUP no longer kill the process: they leave a request to
/// end, which stays for good. Where `patience`, below a second, is not 0, a process that has not
/// ended cleanly by then ends as it is, with status 0: a host that waits for it must not wait for a
/// long frame. SIGPIPE is ignored, so that a reader of our output or a display that goes away is an
/// error for whoever writes, not a death without a clean end.
void installEndSignals(std::chrono::milliseconds patience = {});

/// Whether one of the signals has come.
[[nodiscard]] bool endRequested();

/// A descriptor that can be read once a signal has come, and ever after; -1 when there is none.
/// To wait on, never to read from.
[[nodiscard]] int endSignalDescriptor();

} // namespace platform
