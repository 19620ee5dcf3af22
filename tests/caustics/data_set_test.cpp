#include "tools/caustics/animation.h"
#include "tools/caustics/options.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <SDL_image.h>
#include <valarray>

// The finished data set in numbers, which are printed beside their limits.
namespace {

namespace fs = std::filesystem;
using Numbers = std::valarray<double>;

constexpr int side = 512;
const fs::path dataSet = fs::path(QUAZO_WINDOWS) / caustics::dataFolder;

double mean(const Numbers& numbers)
{
    return numbers.sum() / static_cast<double>(numbers.size());
}

double covariance(const Numbers& left, const Numbers& right)
{
    return mean((left - mean(left)) * (right - mean(right)));
}

double contrast(const Numbers& numbers)
{
    return std::sqrt(covariance(numbers, numbers)) / mean(numbers);
}

double quantile(double part, Numbers set)
{
    const auto place = std::lround(part * static_cast<double>(set.size()));
    std::nth_element(std::begin(set), std::begin(set) + place, std::end(set));
    return set[static_cast<std::size_t>(place)];
}

/// The places in an image of the texels inside the disc of `radius`, where 1 is the rim.
std::valarray<std::size_t> disc(double radius)
{
    constexpr double half = side / 2.0;
    std::vector<std::size_t> places;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            if (std::hypot(x + 0.5 - half, y + 0.5 - half) < radius * half)
                places.push_back(static_cast<std::size_t>(y * side + x));
    return {places.data(), places.size()};
}

/// The levels of all texels well inside the disc at (1, 1), else of their neighbours.
Numbers around(const Numbers& image, std::size_t down, std::size_t right)
{
    static const std::valarray<std::size_t> corners = disc(0.9) - (side + 1);
    return image[corners + (down * side + right)];
}

/// The rms response to a filter that sees only grain, in the darker half.
double grain(const Numbers& image)
{
    const auto row = [&](std::size_t down) -> Numbers {
        return around(image, down, 0) - 2.0 * around(image, down, 1) + around(image, down, 2);
    };
    const Numbers response = (row(0) - 2.0 * row(1) + row(2)) / 4.0;
    const Numbers middle = around(image, 1, 1);
    const Numbers dark = response[middle <= quantile(0.5, middle)];
    return std::sqrt(mean(dark * dark));
}

/// From the structure tensor: 0 if the slopes point all ways alike, 1 if along one line only.
double direction(const Numbers& image)
{
    const Numbers x = around(image, 1, 2) - around(image, 1, 0);
    const Numbers y = around(image, 2, 1) - around(image, 0, 1);
    return std::hypot(mean(x * x - y * y), 2.0 * mean(x * y)) / mean(x * x + y * y);
}

void expectWithin(const char* what, const Numbers& values, double least, double most)
{
    std::printf("%-42s %9.6g to %-9.6g limits %g, %g\n", what, values.min(), values.max(), least,
                most);
    EXPECT_GE(values.min(), least) << what;
    EXPECT_LE(values.max(), most) << what;
}

/// One number of each image.
Numbers each(const std::vector<Numbers>& images, double (*measure)(const Numbers&))
{
    Numbers values(images.size());
    std::ranges::transform(images, std::begin(values), measure);
    return values;
}

/// The levels from 0 to 255, row by row. None if the file is not an 8-bit indexed image of the one
/// size.
Numbers readImage(const fs::path& file)
{
    const std::unique_ptr<SDL_Surface, decltype(&SDL_FreeSurface)> image(IMG_Load(file.c_str()),
                                                                         SDL_FreeSurface);
    if (image == nullptr || image->format->palette == nullptr || image->w != side ||
        image->h != side || image->pitch != side)
        return {};
    Numbers levels(side * side);
    std::copy_n(static_cast<const Uint8*>(image->pixels), side * side, std::begin(levels));
    return levels;
}

void expectGoodMotion(const std::vector<Numbers>& frames)
{
    const std::size_t count = frames.size();
    Numbers timeMean(frames[0].size());
    Numbers steps(count), alike(count), apart(255.0, count), closest(-1.0, count);
    for (std::size_t i = 0; i < count; ++i) {
        timeMean += frames[i] / static_cast<double>(count);
        for (std::size_t next = count - 1; next > 0; --next) {
            const Numbers &left = frames[i], &right = frames[(i + next) % count];
            steps[i] = mean(std::abs(left - right)); // the last one is to the next frame
            alike[i] = covariance(left, right) /
                       std::sqrt(covariance(left, left) * covariance(right, right));
            apart[i] = std::min(apart[i], steps[i]);
            closest[i] = std::max(closest[i], alike[i]);
        }
    }
    const Numbers inner = steps[std::slice(0, count - 1, 1)];
    expectWithin("loop: last step", {steps[count - 1]}, 0.8 * inner.min(), 1.2 * inner.max());
    expectWithin("largest step / smallest step", {steps.max() / steps.min()}, 1.0, 1.5);
    expectWithin("mean correlation of a step", {mean(alike)}, 0.65, 1.0);
    expectWithin("difference of any two frames", apart, 4.0, 255.0);
    expectWithin("correlation of any two frames", closest, -1.0, 0.95);
    expectWithin("standing pattern: std/mean of the mean", {contrast(timeMean)}, 0.0, 0.45);
}

TEST(DataSet, LooksAndMovesLikeLightUnderWater)
{
    const auto files = std::distance(fs::directory_iterator(dataSet), fs::directory_iterator());
    expectWithin("images, beside three text files", {static_cast<double>(files - 3)}, 32, 32);
    const auto shown = disc(1.0); // by the surface
    std::vector<Numbers> images, discs;
    Numbers sizes(caustics::frameCount);
    for (int frame = 0; frame < caustics::frameCount; ++frame) {
        const fs::path file = dataSet / caustics::imageName(frame);
        images.push_back(readImage(file));
        ASSERT_NE(images.back().size(), 0U) << file;
        discs.emplace_back(images.back()[shown]);
        sizes[static_cast<std::size_t>(frame)] = static_cast<double>(fs::file_size(file)) / 1024.0;
    }
    expectWithin("an image, KB", sizes, 1.0, 120.0);
    expectWithin("all images, KB", {sizes.sum()}, 32.0, 3.5 * 1024.0);

    const Numbers means = each(discs, mean);
    const auto bright = [](const Numbers& n) { return quantile(0.99, n) / 255.0; };
    const auto ratio = [](const Numbers& n) { return quantile(0.99, n) / quantile(0.5, n); };
    const auto burnt = [](const Numbers& n) { return mean(Numbers(n / 255.0).apply(std::floor)); };
    expectWithin("mean of the set, of 255", {mean(means) / 255.0}, 0.12, 0.17);
    expectWithin("spread / mean", {(means.max() - means.min()) / mean(means)}, 0.0, 0.06);
    expectWithin("p99/p50", each(discs, ratio), 7.0, 18.0);
    expectWithin("std/mean", each(discs, contrast), 0.9, 1.5);
    expectWithin("p99, of 255", each(discs, bright), 0.7, 1.0);
    expectWithin("texels at 255, of all", each(discs, burnt), 0.0, 0.015);
    expectWithin("grain in the dark, levels", each(images, grain), 0.0, 0.8);
    expectWithin("direction", each(images, direction), 0.0, 0.25);
    expectGoodMotion(discs);
}

TEST(DataSet, LightIsNeitherLostNorMadeAndGoesOnOverTheEdges)
{
    // Smaller than the set itself: that changes neither the energy nor the edges.
    const auto tiles =
        caustics::makeLight({.seed = caustics::Options().seed, .size = 128, .threads = 2}, [] {});
    Numbers means(tiles.size());
    std::ranges::transform(tiles, std::begin(means), [](const auto& tile) { return tile.mean(); });
    expectWithin("linear: (max - min)/mean", {(means.max() - means.min()) / mean(means)}, 0, 0.001);
    const int lines = tiles[0].side();
    Numbers columnSteps(static_cast<std::size_t>(lines)), rowSteps(columnSteps);
    for (const caustics::Tile& tile : tiles)
        for (int i = 0; i < lines * lines; ++i) {
            const int line = i / lines, next = (line + 1) % lines, along = i % lines;
            const auto place = static_cast<std::size_t>(line);
            columnSteps[place] += std::abs(tile.at(line, along) - tile.at(next, along));
            rowSteps[place] += std::abs(tile.at(along, line) - tile.at(along, next));
        }
    for (const Numbers& steps : {columnSteps, rowSteps})
        expectWithin("edge / neighbours", {steps[steps.size() - 1] / mean(steps)}, 0.0, 1.5);
}

} // namespace
