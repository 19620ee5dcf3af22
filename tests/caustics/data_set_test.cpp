#include "tools/caustics/animation.h"
#include "tools/caustics/options.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <SDL_image.h>
#include <valarray>

// The finished data set in numbers, which are printed beside their limits.
namespace {

namespace fs = std::filesystem;
using Numbers = std::valarray<double>;

constexpr int side = 512;
constexpr double noLimit = 1e9;
const fs::path windows = QUAZO_WINDOWS;
const fs::path dataSet = windows / caustics::dataFolder;

/// One image: its levels from 0 to 255, row by row, and those inside the disc that the surface
/// can show. What is said of an image is said of its disc.
struct Frame {
    std::vector<int> levels;
    Numbers disc;
    Numbers sorted;

    double quantile(double part) const
    {
        return sorted[static_cast<std::size_t>(part * static_cast<double>(sorted.size()))];
    }
};

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

double difference(const Numbers& left, const Numbers& right)
{
    return mean(std::abs(left - right));
}

/// Calls `visit` for every texel inside the disc of `radius`, where 1 is the rim.
template <typename Visit>
void forDisc(double radius, Visit visit)
{
    constexpr double half = side / 2.0;
    for (int row = 1; row < side - 1; ++row)
        for (int column = 1; column < side - 1; ++column)
            if (std::hypot(column + 0.5 - half, row + 0.5 - half) < radius * half)
                visit(static_cast<std::size_t>(row * side) + static_cast<std::size_t>(column));
}

/// The rms response to a filter that sees only grain, in the darker half.
double grain(const Frame& frame)
{
    const auto& levels = frame.levels;
    const auto acrossRow = [&](std::size_t middle) {
        return levels[middle - 1] - 2 * levels[middle] + levels[middle + 1];
    };
    double squares = 0.0;
    int count = 0;
    forDisc(0.9, [&](std::size_t place) {
        if (levels[place] > frame.quantile(0.5))
            return;
        const int response =
            acrossRow(place - side) - 2 * acrossRow(place) + acrossRow(place + side);
        squares += response * response / 16.0;
        ++count;
    });
    return std::sqrt(squares / count);
}

/// From the structure tensor: 0 if the slopes point all ways alike, 1 if along one line only.
double direction(const Frame& frame)
{
    double xx = 0.0, xy = 0.0, yy = 0.0;
    forDisc(0.9, [&](std::size_t place) {
        const double x = frame.levels[place + 1] - frame.levels[place - 1];
        const double y = frame.levels[place + side] - frame.levels[place - side];
        xx += x * x;
        xy += x * y;
        yy += y * y;
    });
    return std::hypot(xx - yy, 2.0 * xy) / (xx + yy);
}

double burntPercent(const Frame& frame)
{
    return 100.0 * static_cast<double>(std::ranges::count(frame.levels, 255)) / (side * side);
}

void expectWithin(const char* what, double smallest, double largest, double least, double most)
{
    std::printf("%-42s %9.6g to %-9.6g limits %g, %g\n", what, smallest, largest, least, most);
    EXPECT_GE(smallest, least) << what;
    EXPECT_LE(largest, most) << what;
}

void expectWithin(const char* what, const Numbers& values, double least, double most)
{
    expectWithin(what, values.min(), values.max(), least, most);
}

void expectWithin(const char* what, double value, double least, double most)
{
    expectWithin(what, value, value, least, most);
}

/// The images that the textures pool lists, in its order.
std::vector<fs::path> listedImages()
{
    std::ifstream lines(dataSet / "textures.txt");
    std::string name, option;
    std::getline(lines, name); // how many
    std::vector<fs::path> images;
    while (lines >> name >> option)
        images.push_back(windows / name);
    return images;
}

/// Without levels if the file is not an 8-bit indexed image of the one size.
Frame readFrame(const fs::path& file)
{
    const std::unique_ptr<SDL_Surface, decltype(&SDL_FreeSurface)> surface(IMG_Load(file.c_str()),
                                                                           SDL_FreeSurface);
    if (surface == nullptr || surface->format->palette == nullptr || surface->w != side ||
        surface->h != side || surface->pitch != side)
        return {};
    const auto* const bytes = static_cast<const Uint8*>(surface->pixels);
    Frame frame;
    frame.levels.assign(bytes, bytes + side * side);
    std::vector<double> disc;
    forDisc(1.0, [&](std::size_t place) { disc.push_back(frame.levels[place]); });
    frame.disc = Numbers(disc.data(), disc.size());
    std::ranges::sort(disc);
    frame.sorted = Numbers(disc.data(), disc.size());
    return frame;
}

/// One number for each of `frames`.
template <typename Measure>
Numbers each(const std::vector<Frame>& frames, Measure measure)
{
    Numbers values(frames.size());
    std::ranges::transform(frames, std::begin(values), measure);
    return values;
}

void expectGoodMotion(const std::vector<Frame>& frames)
{
    const std::size_t count = frames.size();
    Numbers timeMean(frames[0].disc.size());
    Numbers steps(count), alike(count), apart(noLimit, count), closest(-1.0, count);
    for (std::size_t i = 0; i < count; ++i) {
        timeMean += frames[i].disc / static_cast<double>(count);
        for (std::size_t next = 1; next < count; ++next) {
            const Numbers& left = frames[i].disc;
            const Numbers& right = frames[(i + next) % count].disc;
            const double correlation = covariance(left, right) /
                                       std::sqrt(covariance(left, left) * covariance(right, right));
            apart[i] = std::min(apart[i], difference(left, right));
            closest[i] = std::max(closest[i], correlation);
            if (next == 1) {
                steps[i] = difference(left, right);
                alike[i] = correlation;
            }
        }
    }
    const Numbers inner = steps[std::slice(0, count - 1, 1)];
    expectWithin("loop: the step from last to first", steps[count - 1], 0.8 * inner.min(),
                 1.2 * inner.max());
    expectWithin("largest step / smallest step", steps.max() / steps.min(), 1.0, 1.5);
    expectWithin("mean correlation of a step", mean(alike), 0.65, 1.0);
    expectWithin("difference of any two frames", apart, 4.0, noLimit);
    expectWithin("correlation of any two frames", closest, -1.0, 0.95);
    expectWithin("standing pattern: std/mean of the mean", contrast(timeMean), 0.0, 0.45);
}

TEST(DataSet, LooksAndMovesLikeLightUnderWater)
{
    const std::vector<fs::path> images = listedImages();
    ASSERT_EQ(images.size(), 32U);
    std::vector<Frame> frames;
    Numbers sizes(images.size());
    for (const fs::path& image : images) {
        frames.push_back(readFrame(image));
        ASSERT_FALSE(frames.back().levels.empty()) << image;
        sizes[frames.size() - 1] = static_cast<double>(fs::file_size(image)) / 1024.0;
    }
    expectWithin("an image, KB", sizes, 1.0, 120.0);
    expectWithin("all images, KB", sizes.sum(), 32.0, 3.5 * 1024.0);

    const Numbers means = each(frames, [](const Frame& frame) { return mean(frame.disc) / 255.0; });
    expectWithin("mean of the set, of 255", mean(means), 0.12, 0.17);
    expectWithin("spread of the means / mean", (means.max() - means.min()) / mean(means), 0, 0.06);
    const auto ratio = [](const Frame& f) { return f.quantile(0.99) / f.quantile(0.5); };
    expectWithin("p99/p50", each(frames, ratio), 7.0, 18.0);
    expectWithin("std/mean", each(frames, [](const Frame& f) { return contrast(f.disc); }), 0.9,
                 1.5);
    const auto bright = [](const Frame& frame) { return frame.quantile(0.99) / 255.0; };
    expectWithin("p99, of 255", each(frames, bright), 0.7, 1.0);
    expectWithin("texels at 255, per cent", each(frames, burntPercent), 0.0, 1.5);
    expectWithin("grain in the dark, levels", each(frames, grain), 0.0, 0.8);
    expectWithin("direction", each(frames, direction), 0.0, 0.25);
    expectGoodMotion(frames);
}

TEST(DataSet, LightIsNeitherLostNorMadeAndGoesOnOverTheEdges)
{
    // Smaller than the set itself: that changes neither the energy nor the edges.
    const auto tiles =
        caustics::makeLight({.seed = caustics::Options().seed, .size = 128, .threads = 2}, [] {});
    Numbers means(tiles.size());
    std::ranges::transform(tiles, std::begin(means), [](const auto& tile) { return tile.mean(); });
    expectWithin("linear: (max - min)/mean", (means.max() - means.min()) / mean(means), 0, 0.001);
    // A plane that the sun meets at 25° catches cos 25° of it, and water reflects 2 % of that.
    expectWithin("linear mean", means, 0.88, 0.895);

    const int lines = tiles[0].side();
    Numbers columnSteps(static_cast<std::size_t>(lines));
    Numbers rowSteps(columnSteps.size());
    for (const caustics::Tile& tile : tiles)
        for (int i = 0; i < lines * lines; ++i) {
            const int line = i / lines, next = (line + 1) % lines, along = i % lines;
            const auto place = static_cast<std::size_t>(line);
            columnSteps[place] += std::abs(tile.at(line, along) - tile.at(next, along));
            rowSteps[place] += std::abs(tile.at(along, line) - tile.at(along, next));
        }
    for (const Numbers& steps : {columnSteps, rowSteps})
        expectWithin("edge / neighbours", steps[steps.size() - 1] / mean(steps), 0.0, 1.5);
}

} // namespace
