#pragma once

#include <cstdio>
#include <mutex>

namespace caustics {

/// Shows how far the work has come: a bar that grows on a terminal, else a line each time
/// another quarter is done. Steps may be counted from several threads.
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
