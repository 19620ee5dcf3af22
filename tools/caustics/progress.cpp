#include "tools/caustics/progress.h"

#include <string>
#include <unistd.h>

namespace caustics {
namespace {

constexpr int barLength = 40; // characters

} // namespace

Progress::Progress(std::FILE* outlet, int stepCount)
    : stream(outlet),
      steps(stepCount),
      onTerminal(isatty(fileno(outlet)) == 1)
{
}

void Progress::step()
{
    const std::lock_guard lock(mutex);
    ++done;
    const int percent = 100 * done / steps;
    if (onTerminal) {
        const int filled = barLength * done / steps;
        const std::string bar(static_cast<std::size_t>(filled), '#');
        std::fprintf(stream, "\rcaustics [%-*s] %3d %%%s", barLength, bar.c_str(), percent,
                     done == steps ? "\n" : "");
    } else if (4 * done / steps != 4 * (done - 1) / steps) {
        std::fprintf(stream, "caustics: %d %%\n", percent);
    }
    std::fflush(stream);
}

} // namespace caustics
