#pragma once

#include <cstdio>
#include <mutex>

namespace caustics {

/// Shows progress: a bar on a terminal, otherwise a line for each quarter. `step` may be called
/// from several threads.
class Progress {
public:
    Progress(std::FILE* outlet, int stepCount);

    void step();

private:
    std::FILE* stream;
    int steps;
    int done = 0;
    bool onTerminal;
    std::mutex mutex;
};

} // namespace caustics
