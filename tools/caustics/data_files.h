#pragma once

#include <string>
#include <vector>

namespace caustics {

/// The folder of the data set, below the directory where the saver looks for it.
constexpr const char* dataFolder = "###quazo!_data###";

/// A file of the data set: its name inside the folder, and all of its bytes.
struct DataFile {
    std::string name;
    std::string bytes;
};

/// The name of the image of frame `frame`, inside the folder.
std::string imageName(int frame);

/// The text files: the data file, the textures pool and the shaders pool. The paths in them begin
/// with the folder, because the saver reads them from the directory above it.
std::vector<DataFile> textFiles();

} // namespace caustics
