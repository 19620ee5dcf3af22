// A data file, beside the pools "t" and "s".

#include "fuzz/harness.h"
#include "tests/support/temporary_directory.h"
#include "zrk/library_data.h"

#include <sstream>

void tryInput(std::span<const std::uint8_t> input)
{
    static const TemporaryDirectory directory;
    [[maybe_unused]] static const bool ready = [] {
        directory.write("t", "1\na\n");
        directory.write("a", "P5 1 1 255\nx");
        directory.write("s", "a\n{\ncolor: 1 1 1 1\n}\n");
        return true;
    }();
    zrk::LibraryData data;
    std::ostringstream log;
    if (data.loadData(fileOf(input), &log) == 0)
        data.upload();
}
