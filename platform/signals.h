#pragma once

namespace platform {

/// From here on SIGTERM, SIGINT and SIGHUP leave a request to end, which is never withdrawn. A
/// process that has not ended by itself 20 ms after the first of them exits at once with status 0,
/// whatever it is doing. SIGPIPE is ignored: when the reader of our output or the display goes
/// away, the write fails, and the program can end in its usual way.
void installEndSignals();

/// Whether one of the signals has come.
[[nodiscard]] bool endRequested();

/// A descriptor that is readable from the first signal on; -1 when there is none. Only to be
/// polled, never read from.
[[nodiscard]] int endSignalDescriptor();

} // namespace platform
