#pragma once

namespace caustics {

constexpr int frameCount = 32;            // images in the loop
constexpr double tileSide = 1.6;          // metres; the period of the water in x and in y
constexpr double waterDepth = 1.5;        // metres from the calm surface to the floor
constexpr double refractiveIndex = 1.333; // of water against air

/// The sun's direction, in radians: its angle from the zenith and its azimuth from the x axis.
constexpr double sunZenith = 0.4363323129985824;
constexpr double sunAzimuth = 1.0471975511965976;

} // namespace caustics
