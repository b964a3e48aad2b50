#include "CodecTags.h"

#include "Lookup.h"

extern "C"
{
#include <libavformat/avformat.h>
#include <libavutil/macros.h>
}

#include <array>
#include <span>

namespace Vexlor
{

namespace
{

struct StandIn
{
    std::uint32_t asked;
    std::uint32_t written;
};

// DIV5 stands for Microsoft's MPEG-4 version 3 in libavformat's table of tags, so it refuses to write MPEG-4
// under it, and would read it back wrongly. DX50 is what DivX 5 itself writes.
constexpr std::array kStandIns{StandIn{MKTAG('D', 'I', 'V', '5'), MKTAG('D', 'X', '5', '0')}};

std::uint32_t StandInFor(std::uint32_t tag)
{
    const auto* row = FindRow(std::span<const StandIn>(kStandIns), &StandIn::asked, tag);
    return row ? row->written : 0;
}

bool Takes(const AVOutputFormat& muxer, AVCodecID codec, std::uint32_t tag)
{
    return !muxer.codec_tag || av_codec_get_id(muxer.codec_tag, tag) == codec;
}

} // namespace

std::uint32_t WritableTag(const AVOutputFormat& muxer, const AVCodecParameters& encoded, std::uint32_t tag)
{
    for (const auto each : {tag, StandInFor(tag), encoded.codec_tag})
        if (each != 0 && Takes(muxer, encoded.codec_id, each))
            return each;
    return 0;
}

std::vector<std::pair<std::string, std::string>> MuxerOptions(std::string_view muxer)
{
    // As strict as it is by default, QuickTime's writes H.264 of 4:2:2 and ten bits as AVC-Intra, whatever it
    // is, and what is none cannot be decoded.
    if (muxer == "mov")
        return {{"strict", "unofficial"}};
    return {};
}

} // namespace Vexlor
