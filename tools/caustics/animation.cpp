#include "tools/caustics/animation.h"

#include "tools/caustics/light.h"
#include "tools/caustics/parallel.h"
#include "tools/caustics/png_writer.h"
#include "tools/caustics/sphere_map.h"
#include "tools/caustics/sun_blur.h"
#include "tools/caustics/water_surface.h"

#include <utility>

namespace caustics {

std::vector<Tile> makeLight(const AnimationSettings& settings, const std::function<void()>& step)
{
    // The image's middle magnifies the tile by pi / 2 (see wrapOnSphere): 1.5 times as many texels
    // keep the filaments sharp there.
    const int tileTexels = settings.size * 3 / 2;
    const WaterSurface water(makeWaves(settings.seed), tileTexels * raysPerTexel);
    std::vector<Tile> tiles(frameCount, Tile(0));
    inParallel(frameCount, settings.threads, [&](int frame) {
        tiles[static_cast<std::size_t>(frame)] = spreadSunlight(castLight(water, frame));
        step();
    });
    return tiles;
}

std::vector<DataFile> makeFiles(const AnimationSettings& settings,
                                const std::function<void()>& step)
{
    std::vector<Tile> tiles = makeLight(settings, step);
    double mean = 0.0;
    for (const Tile& tile : tiles)
        mean += tile.mean() / frameCount;
    std::vector<DataFile> files(frameCount);
    inParallel(frameCount, settings.threads, [&](int frame) {
        const auto index = static_cast<std::size_t>(frame);
        tiles[index].scale(static_cast<float>(1.0 / mean));
        files[index] = {imageName(frame), encodePng(wrapOnSphere(tiles[index], settings.size))};
        step();
    });
    for (DataFile& file : textFiles())
        files.push_back(std::move(file));
    return files;
}

} // namespace caustics
