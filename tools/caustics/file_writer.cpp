#include "tools/caustics/file_writer.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <system_error>
#include <vector>

namespace caustics {
namespace {

namespace fs = std::filesystem;

/// Blocks the signals that could end the program between two files, and makes a file beyond the
/// size limit fail like a full disk.
class SignalsHeld {
public:
    SignalsHeld()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, &before);
    }
    ~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;

private:
    sigset_t before{};
};

/// The files and folders created so far, under their present names. Those still listed at the end
/// of its life are removed, the latest first.
class Unfinished {
public:
    Unfinished() = default;
    ~Unfinished()
    {
        std::error_code ignored;
        for (; !paths.empty(); paths.pop_back())
            fs::remove(paths.back(), ignored);
    }
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;

    std::vector<fs::path> paths;
};

bool writeWhole(const fs::path& path, const std::string& bytes)
{
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (file == nullptr)
        return false;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return (std::fclose(file) == 0) && written;
}

std::string cannot(const char* action, const fs::path& path, int error)
{
    return std::string("cannot ") + action + " " + path.string() + ": " + std::strerror(error);
}

} // namespace

std::string writeFiles(const fs::path& folder, std::span<const DataFile> files)
{
    const SignalsHeld held;
    Unfinished made;
    std::error_code failure;
    if (fs::create_directory(folder, failure))
        made.paths.push_back(folder);
    if (failure)
        return cannot("make the folder", folder, failure.value());

    const std::size_t first = made.paths.size();
    for (const DataFile& file : files) {
        made.paths.push_back(folder / (file.name + ".part"));
        if (!writeWhole(made.paths.back(), file.bytes))
            return cannot("write", made.paths.back(), errno);
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        const fs::path path = folder / files[i].name;
        fs::rename(made.paths[first + i], path, failure);
        if (failure)
            return cannot("replace", path, failure.value());
        made.paths[first + i] = path;
    }
    made.paths.clear();
    return {};
}

} // namespace caustics
