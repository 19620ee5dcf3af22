#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#endif

/// A new directory that is the current one for its lifetime; removed with all that is in it.
class TemporaryDirectory {
public:
    TemporaryDirectory()
    {
        std::random_device random;
        do
            path = std::filesystem::temp_directory_path() / ("quazo-" + std::to_string(random()));
        while (!std::filesystem::create_directory(path)); // false: it is somebody else's
        std::filesystem::current_path(path);
    }

    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    ~TemporaryDirectory()
    {
        std::filesystem::current_path(previous);
        std::filesystem::remove_all(path);
    }

    /// Makes the file `name`, and the directories on the way, of these bytes.
    void write(const std::filesystem::path& name, const std::string& contents) const
    {
        std::filesystem::create_directories((path / name).parent_path());
        std::ofstream(path / name, std::ios::binary) << contents;
    }

    /// Makes a FIFO, which nobody writes to. False when that fails; a system without FIFOs is left
    /// without the file.
    [[nodiscard]] bool makeFifo([[maybe_unused]] const char* name) const
    {
#ifdef _WIN32
        return true;
#else
        return mkfifo((path / name).c_str(), 0600) == 0;
#endif
    }

    std::filesystem::path path;

private:
    std::filesystem::path previous = std::filesystem::current_path();
};
