#include "tests/apps/Picture.h"

#include "tests/media/Ffmpeg.h"
#include "tests/media/MediaMaker.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "runtime/mediacodecs/VXMediaFile.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace Vexlor::Apps
{

namespace
{

using RGB = std::array<int, 3>;

struct Colour
{
    const char* name;
    RGB rgb;
};

constexpr std::array kColours{Colour{"red", {255, 0, 0}}, Colour{"green", {0, 255, 0}},
                              Colour{"blue", {0, 0, 255}}, Colour{"white", {255, 255, 255}},
                              Colour{"black", {0, 0, 0}}};

bool IsNear(const RGB& one, const RGB& other)
{
    constexpr int kFar = 60; // of compression
    for (std::size_t i = 0; i < one.size(); ++i)
        if (std::abs(one.at(i) - other.at(i)) > kFar)
            return false;
    return true;
}

/// What the program makes of a file, without its own turning of pictures.
std::string Decoded(const std::string& path, const std::string& how)
{
    const Media::ScratchFolder folder;
    Media::RunFfmpeg("-noautorotate -i " + path + ' ' + how, folder.Path("decoded"));
    return Media::BytesOf(folder.Path("decoded"));
}

} // namespace

std::string Picture::ColourAt(int x, int y) const
{
    const auto at = static_cast<std::size_t>(3 * (y * width + x));
    const RGB rgb{pixels.at(at), pixels.at(at + 1), pixels.at(at + 2)};
    for (const auto& colour : kColours)
        if (IsNear(colour.rgb, rgb))
            return colour.name;
    return std::to_string(rgb[0]) + ' ' + std::to_string(rgb[1]) + ' ' + std::to_string(rgb[2]);
}

std::string Picture::Corners() const
{
    constexpr int kIn = 6;
    return ColourAt(kIn, kIn) + ' ' + ColourAt(width - kIn, kIn) + ' ' + ColourAt(kIn, height - kIn) + ' ' +
           ColourAt(width - kIn, height - kIn);
}

Picture FirstPicture(const std::string& path)
{
    const auto video = ReadMediaFile(path).parameter->GetVideoCodecParameter();
    const auto bytes = Decoded(path, "-frames:v 1 -f rawvideo -pix_fmt rgb24");
    return {video->GetWidth(), video->GetHeight(), {bytes.begin(), bytes.end()}};
}

Sound SoundOf(const std::string& path)
{
    const auto audio = ReadMediaFile(path).parameter->GetAudioCodecParameter();
    const auto bytes = Decoded(path, "-f f32le -c:a pcm_f32le");
    std::vector<float> samples(bytes.size() / sizeof(float));
    std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(float));
    Sound sound{audio->GetSampleRate(),
                std::vector<double>(static_cast<std::size_t>(std::popcount(audio->GetChannelLayout())))};
    for (std::size_t i = 0; i < samples.size(); ++i)
    {
        auto& peak = sound.peaks.at(i % sound.peaks.size());
        peak = std::max(peak, std::abs(double(samples[i])));
    }
    return sound;
}

} // namespace Vexlor::Apps
