#include "tools/caustics/data_files.h"

#include "tools/caustics/water.h"

namespace caustics {
namespace {

constexpr const char* texturesName = "textures.txt";
constexpr const char* shadersName = "shaders.txt";

std::string frameName(int frame)
{
    return std::string("caustic") + static_cast<char>('0' + frame / 10) +
           static_cast<char>('0' + frame % 10);
}

std::string inFolder(const std::string& name)
{
    return std::string(dataFolder) + "/" + name;
}

std::string texturesPool()
{
    std::string text = std::to_string(frameCount) + "\n";
    for (int frame = 0; frame < frameCount; ++frame)
        text += inFolder(imageName(frame)) + " mipmap\n";
    return text;
}

/// Each shader adds its image to the picture. Without the blend layer the surface would overwrite
/// the trails, and the picture would be nearly black. Blending two mipmaps would cost a tenth of a
/// frame where the CPU draws, and differ by 11 of 255 levels at most.
std::string shadersPool()
{
    std::string text;
    for (int frame = 0; frame < frameCount; ++frame)
        text += frameName(frame) + "\n{\n  texture: " + std::to_string(frame) +
                ", linear_mipmap_nearest, linear, clamp_to_edge, clamp_to_edge, modulate,"
                " <0, 0, 0, 0>\n  blend: one, one\n}\n\n";
    return text;
}

} // namespace

std::string imageName(int frame)
{
    return frameName(frame) + ".png";
}

std::vector<DataFile> textFiles()
{
    return {{texturesName, texturesPool()},
            {shadersName, shadersPool()},
            {"caustics.qvd", inFolder(texturesName) + "\n" + inFolder(shadersName) + "\n"}};
}

} // namespace caustics
