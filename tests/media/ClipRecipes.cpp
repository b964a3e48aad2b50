#include "tests/media/ClipRecipes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <stdexcept>

namespace Vexlor::Media
{

namespace
{

// Writes a quarter turn into the header of an MP4's first track. Done by hand, since the option for it
// differs between the versions of the ffmpeg program.
void TurnFirstTrack(std::string& bytes)
{
    constexpr std::size_t matrixOffset = 44; // behind the box's name: times, identifiers, layer, volume
    constexpr std::array<std::uint32_t, 9> quarterTurn = {0, 0x10000, 0, 0xFFFF0000, 0, 0, 0, 0, 0x40000000};
    const auto box = bytes.find("tkhd");
    if (box == std::string::npos || box + matrixOffset + sizeof(quarterTurn) > bytes.size())
        throw std::runtime_error("no track header to turn");
    auto at = box + matrixOffset;
    for (const auto value : quarterTurn)
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes[at++] = static_cast<char>(value >> shift & 0xFF);
}

constexpr std::string_view kQuarters = "-f lavfi -i color=red:size=160x120:rate=10:duration=0.4,"
                                       "drawbox=x=80:w=80:h=60:color=lime:t=fill,"
                                       "drawbox=y=60:w=80:h=60:color=blue:t=fill,"
                                       "drawbox=x=80:y=60:w=80:h=60:color=white:t=fill"
                                       " -c:v libx264 -preset ultrafast -pix_fmt yuv420p";
constexpr std::string_view kWideQuarters = "-f lavfi -i color=red:size=160x120:rate=10:duration=0.4,"
                                           "drawbox=x=80:w=80:h=60:color=lime:t=fill,"
                                           "drawbox=y=60:w=80:h=60:color=blue:t=fill,"
                                           "drawbox=x=80:y=60:w=80:h=60:color=white:t=fill,setsar=2"
                                           " -c:v libx264 -preset ultrafast -pix_fmt yuv420p";

constexpr std::array kRecipes{
    ClipRecipe{"film.mp4", "size=1920x1080:rate=30:duration=1", "sample_rate=48000:duration=1",
               "-c:v libx264 -preset superfast -profile:v main -c:a aac -b:a 96k -ac 2"},
    ClipRecipe{"film.mkv", "size=640x360:rate=24000/1001:duration=2", "sample_rate=48000:duration=2",
               "-c:v libx264 -preset ultrafast -c:a libopus -b:a 64k -ac 2"},
    ClipRecipe{"film.webm", "size=320x180:rate=25:duration=1", "sample_rate=48000:duration=1",
               "-c:v libvpx-vp9 -deadline realtime -cpu-used 8 -c:a libopus -ac 2"},
    ClipRecipe{"film.avi", "size=320x240:rate=25:duration=1", "sample_rate=44100:duration=1",
               "-c:v mpeg4 -tag:v XVID -c:a libmp3lame -b:a 128k -ac 2"},
    ClipRecipe{"film.ts", "size=320x180:rate=25:duration=2", "sample_rate=48000:duration=2",
               "-c:v libx264 -preset ultrafast -c:a aac -ac 2"},
    ClipRecipe{"anamorphic.mp4", "size=720x576:rate=25:duration=1", "",
               "-c:v libx264 -preset ultrafast -vf setsar=64/45"},
    ClipRecipe{"rotated.mp4", "size=1920x1080:rate=30:duration=0.5", "sample_rate=48000:duration=0.5",
               "-c:v libx264 -preset ultrafast -c:a aac -ac 1", TurnFirstTrack},
    ClipRecipe{"turned.mp4", "size=720x576:rate=25:duration=1", "",
               "-c:v libx264 -preset ultrafast -vf setsar=64/45", TurnFirstTrack},
    ClipRecipe{"tenbit.mp4", "size=640x360:rate=25:duration=0.4", "",
               "-c:v libx265 -preset ultrafast -x265-params log-level=none -pix_fmt yuv420p10le -tag:v hvc1"},
    ClipRecipe{"surround.mp4", "size=320x180:rate=25:duration=1", "sample_rate=48000:duration=1",
               "-c:v libx264 -preset ultrafast -c:a aac -af pan=5.1|FL=c0|FR=c0|FC=c0|LFE=c0|BL=c0|BR=c0"},
    ClipRecipe{"silent.mp4", "size=320x180:rate=25:duration=1", "", "-c:v libx264 -preset ultrafast"},
    ClipRecipe{"uneven.mp4", "size=320x180:rate=30:duration=0.667", "",
               "-c:v libx264 -preset ultrafast -fps_mode vfr -vf setpts='if(lt(N,10),N,2*N-10)/30/TB'"},
    ClipRecipe{"animation.mov", "size=640x360:rate=25:duration=0.4", "sample_rate=48000:duration=0.4",
               "-c:v qtrle -c:a pcm_s16le -ac 2"},
    ClipRecipe{"music.mp3", "size=64x64:rate=1:duration=1", "sample_rate=44100:duration=2",
               "-map 0:v -map 1:a -c:v png -disposition:v attached_pic -c:a libmp3lame -b:a 128k -ac 2"},
    ClipRecipe{"music.flac", "", "sample_rate=44100:duration=1", "-ac 2"},
    ClipRecipe{"count.au", "", "sample_rate=48000:duration=0.5",
               "-c:a pcm_s16be -af pan=5.1|FL=c0|FR=c0|FC=c0|LFE=c0|BL=c0|BR=c0"},
    ClipRecipe{"subtitles.mkv", "", "",
               "-f srt -i data:text/plain;base64,MQowMDowMDowMCwwMDAgLS0+IDAwOjAwOjAxLDAwMApIZWxsbwoK"},
    ClipRecipe{"picture.png", "size=64x64:rate=1:duration=1", "", "-frames:v 1"},
    ClipRecipe{"quarters.mp4", "", "", kQuarters},
    ClipRecipe{"quarters-turned.mp4", "", "", kQuarters, TurnFirstTrack},
    ClipRecipe{"quarters-wide.mp4", "", "", kWideQuarters},
    ClipRecipe{"streamed.mp4", "size=320x180:rate=25:duration=1", "",
               "-c:v libx264 -preset ultrafast -movflags +faststart"},
};

} // namespace

const ClipRecipe& FindRecipe(std::string_view name)
{
    const auto* recipe = std::ranges::find(kRecipes, name, &ClipRecipe::name);
    if (recipe == kRecipes.end())
        throw std::invalid_argument("no clip is called " + std::string(name));
    return *recipe;
}

std::string ArgumentsOf(const ClipRecipe& recipe)
{
    std::string arguments;
    if (!recipe.picture.empty())
        arguments += "-f lavfi -i testsrc2=" + std::string(recipe.picture) + ' ';
    if (!recipe.tone.empty())
        arguments += "-f lavfi -i sine=" + std::string(recipe.tone) + ' ';
    return arguments += recipe.arguments;
}

} // namespace Vexlor::Media
