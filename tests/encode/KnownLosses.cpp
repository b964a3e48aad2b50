#include "VXMediaCodecs.h"
#include "tests/encode/ReadBack.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

namespace Vexlor
{

namespace
{

/// A property that does not survive, and why that cannot be otherwise. Channels are counted apart, so that a
/// row about the places of loudspeakers never hides a lost one.
struct LossRow
{
    std::string_view containers; ///< separated by blanks; empty: any
    std::span<const int> codecs;
    std::string_view property;
    std::string_view reason;
    std::string_view text = {}; ///< stands in what the difference tells; empty: anything
};

template <int... kIDs>
constexpr std::array<int, sizeof...(kIDs)> kCodecs{kIDs...};

constexpr auto kPCM = kCodecs<VXCodecID_PCM16, VXCodecID_PCM24, VXCodecID_PCM32, VXCodecID_PCMFloat,
                              VXCodecID_PCM16BE, VXCodecID_PCM24BE>;
constexpr auto kPCMOfMatroska =
    kCodecs<VXCodecID_PCM16, VXCodecID_PCM24, VXCodecID_PCM32, VXCodecID_PCMFloat>;

constexpr std::array kLosses{
    LossRow{"", kCodecs<VXCodecID_Opus>, "sample rate", "Opus always decodes to 48 kHz (RFC 7845 5.1)"},
    LossRow{"OGG OGV", kCodecs<VXCodecID_FLAC>, "layout",
            "FLAC has one place for back and side loudspeakers (RFC 9639 9.1.3)"},
    LossRow{"CAF AIFF", kPCM, "layout", "libavformat writes no layout of its own where a tag is near enough"},
    LossRow{"", kCodecs<VXCodecID_H264, VXCodecID_HEVC>, "narrower profile",
            "x264 and x265 name the narrowest profile that holds the stream"},
    LossRow{"", kCodecs<VXCodecID_H264>, "pixel format",
            "libavcodec decodes gray H.264 as 4:2:0 without color", "Gray became YUV 4:2:0"},
    LossRow{"", kCodecs<VXCodecID_ProRes>, "pixel format", "ProRes does not tell ten bits from twelve",
            "4:4:4 10-bit"},
    LossRow{"", kCodecs<VXCodecID_GIF>, "pixel format",
            "a palette is decoded to the colors that it stands for"},
    LossRow{"MKV MKA MXF", kPCMOfMatroska, "layout",
            "the number of channels of PCM is stored, not their places"},
};

// A profile of ProRes and DNxHR has a bitrate of its own, whatever the grade that is chosen beside it.
constexpr auto kOtherBitrates = kCodecs<VXCodecID_ProRes, VXCodecID_DNxHR>;

/// How exactly a container tells a frame rate.
struct ClockRow
{
    std::string_view containers;
    double tolerance;
    std::string_view reason;
};

constexpr double kExact = 0.0002; // below what tells 29.97 from 30

constexpr std::array kClocks{
    ClockRow{"TS M2TS FLV", 0.0011,
             "no frame rate is stored, and the time stamps of ten frames do not tell 59.94 from 60"},
    ClockRow{"GIF", 0.003,
             "time stamps are hundredths, and libavformat takes the nearest twelfth of a frame"},
    ClockRow{"ASF WMV", 0.02, "the same, with a clock of milliseconds and three frames of a large picture"},
};

bool Names(std::string_view words, std::string_view word)
{
    return words.empty() ||
           (' ' + std::string(words) + ' ').find(' ' + std::string(word) + ' ') != std::string::npos;
}

} // namespace

std::string ReasonOf(const Difference& difference, const std::string& container, int codecID)
{
    for (const auto& row : kLosses)
        if (row.property == difference.property && Names(row.containers, container) &&
            difference.text.find(row.text) != std::string::npos &&
            std::ranges::find(row.codecs, codecID) != row.codecs.end())
            return std::string(row.reason);
    return {};
}

std::vector<std::string> ReasonsFor(int codecID)
{
    std::vector<std::string> reasons;
    for (const auto& row : kLosses)
        if (std::ranges::find(row.codecs, codecID) != row.codecs.end())
            reasons.emplace_back(row.reason);
    return reasons;
}

bool IsExpectedToGiveWay(const std::string& change, int codecID, bool hasOfferedBitrate)
{
    if (change.starts_with("profile ") || change.starts_with("level "))
        return true;
    const bool isOffered =
        hasOfferedBitrate && std::ranges::find(kOtherBitrates, codecID) == kOtherBitrates.end();
    constexpr std::array kOfBitrates{"bitrate ", "constant bitrate ", "bounds of the bitrate "};
    return !isOffered &&
           std::ranges::any_of(kOfBitrates, [&](const char* start) { return change.starts_with(start); });
}

double RateToleranceOf(const std::string& container)
{
    for (const auto& row : kClocks)
        if (Names(row.containers, container))
            return row.tolerance;
    return kExact;
}

} // namespace Vexlor
