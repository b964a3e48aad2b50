#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Vexlor::Apps
{

/// A picture as a viewer sees it, but for the shape of its pixels.
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels; ///< red, green, blue

    /// "160x120".
    std::string Size() const { return std::to_string(width) + 'x' + std::to_string(height); }
    /// "red", "green", "blue", "white" or "black", whichever is near; else the three numbers.
    std::string ColourAt(int x, int y) const;
    /// The colours near the corners: upper left, upper right, lower left, lower right.
    std::string Corners() const;
};

/// The first picture of a file.
Picture FirstPicture(const std::string& path);

/// Sound as its samples tell.
struct Sound
{
    int sampleRate = 0;
    std::vector<double> peaks; ///< of each channel; 1 is full scale
};

/// The sound of a file.
Sound SoundOf(const std::string& path);

} // namespace Vexlor::Apps
