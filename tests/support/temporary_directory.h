#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

/// A new directory that is the current one for its lifetime; removed with all that is in it.
class TemporaryDirectory {
public:
    TemporaryDirectory()
    {
        std::string name = (std::filesystem::temp_directory_path() / "quazo-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("no temporary directory: " + name);
        path = name;
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

    std::filesystem::path path;

private:
    std::filesystem::path previous = std::filesystem::current_path();
};
