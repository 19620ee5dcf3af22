#include "tools/caustics/animation.h"
#include "tools/caustics/file_writer.h"
#include "tools/caustics/options.h"
#include "tools/caustics/progress.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <thread>

namespace {

constexpr int unwritten = 1;
constexpr int wrongCall = 2;

int fail(const std::string& reason)
{
    std::cerr << "make_caustics: " << reason << "\n";
    return unwritten;
}

/// Computes everything in memory and writes it at the end, so that an interrupted run leaves
/// nothing behind.
int makeDataSet(const caustics::Options& options)
{
    if (!std::filesystem::is_directory(options.directory))
        return fail("no directory " + options.directory.string());
    const int processors = static_cast<int>(std::thread::hardware_concurrency());
    caustics::Progress progress(stdout, caustics::animationSteps);
    const std::vector<caustics::DataFile> files = caustics::makeFiles(
        {.seed = options.seed,
         .size = options.size,
         .threads = options.threads > 0 ? options.threads : std::max(processors, 1)},
        [&progress] { progress.step(); });
    const std::filesystem::path folder = options.directory / caustics::dataFolder;
    const std::string failure = caustics::writeFiles(folder, files);
    if (!failure.empty())
        return fail(failure);
    std::cout << "caustics: " << files.size() << " files in " << folder.string() << "\n";
    return 0;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const std::span<const char* const> all(arguments, static_cast<std::size_t>(argumentCount));
    const auto options = caustics::readOptions(all.subspan(1), std::cerr);
    if (!options)
        return wrongCall;
    if (options->help) {
        std::cout << caustics::helpText;
        return 0;
    }
    try {
        return makeDataSet(*options);
    } catch (const std::exception& exception) {
        return fail(exception.what());
    }
}
