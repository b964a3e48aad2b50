#pragma once

#include <cstdint>
#include <span>
#include <string_view>

extern "C"
{
#include <libavcodec/codec_id.h>
#include <libavutil/rational.h>
}

struct AVCodecParameters;

namespace Vexlor
{

/// A picture size in pixels.
struct PictureSize
{
    int width = 0;
    int height = 0;
    friend constexpr bool operator==(const PictureSize&, const PictureSize&) = default;
};

/// What a video codec's standard lets a picture be.
struct VideoLimits
{
    PictureSize min;
    PictureSize max;
    std::int64_t maxArea = 0; ///< most pixels of one picture; 0 when the sides alone limit it
    std::span<const PictureSize> sizes =
        {}; ///< the only sizes; empty when every size within the limits is taken
    AVRational minRate = {1, 1};
    AVRational maxRate = {300, 1};
    std::span<const AVRational> rates = {}; ///< the only frame rates; empty when every one is taken
    int maxRateTerm = 0; ///< largest numerator and denominator of a rate; 0 when there is none
};

/// What an audio codec's standard lets sound be; both lists in the order in which a user is offered them.
struct AudioLimits
{
    std::span<const int> sampleRates;
    std::span<const std::uint64_t> layouts;
};

/// One codec that has an identifier of ours.
struct CodecRow
{
    int id;                    ///< VXCodecID_...
    std::string_view name;     ///< display name
    int type;                  ///< VXCodecTypeVideo or VXCodecTypeAudio
    AVCodecID avID;            ///< libavcodec's name for it
    std::string_view encoders; ///< libavcodec's encoders, preferred first, separated by blanks
    std::span<const int>
        formats; ///< pixel or sample formats (ours), in the order in which a user is offered them
    VideoLimits video = {};
    AudioLimits audio = {};
    /// Without a profile its encoder makes another codec, or a container does not take it: the first one that
    /// holds the format is set where none is chosen.
    bool needsProfile = false;
};

/// Every codec with an identifier of ours, in the order of the identifiers.
std::span<const CodecRow> CodecTable();
/// The row of an identifier of ours; null when there is none.
const CodecRow* FindCodec(int codecID);
/// The identifier of a stream of libavformat's. Where codecs of ours share one of libavcodec's, the
/// container's tag, the profile or the picture's height tells them apart. VXCodecID_None when the codec has
/// none of ours.
int CodecIDOf(const AVCodecParameters& stream);

} // namespace Vexlor
