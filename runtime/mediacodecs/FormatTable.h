#pragma once

#include "CodecTable.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

extern "C"
{
#include <libavutil/rational.h>
}

struct AVInputFormat;

namespace Vexlor
{

/// The sizes that a container's pictures have at some frame rates.
struct PictureSystem
{
    std::span<const AVRational> rates;
    std::span<const PictureSize> sizes;
};

/// What of a codec a container takes, where it does not take all; an empty list limits nothing.
struct StreamLimit
{
    std::span<const int> codecs;
    std::span<const int> sampleRates = {};
    std::span<const std::uint64_t> layouts = {};
    std::span<const AVRational> frameRates = {};
    std::span<const PictureSystem> systems = {}; ///< between them they have all the frame rates
    std::span<const int> formats = {};           ///< the first stands in for one that is not taken
    std::span<const int> profiles = {};          ///< as above
    std::span<const int> levels = {};            ///< as above
    int mostBitrate = 0;                         ///< bits a second; 0: any
};

/// The tag that players of a container want a codec's stream to have, where it is not its muxer's own choice.
struct CodecTag
{
    int codecID;
    std::uint32_t tag;
};

/// One container that has a name of ours.
struct FormatRow
{
    std::string_view name;            ///< "MP4"
    std::string_view muxer;           ///< libavformat's muxer
    std::string_view demuxer;         ///< one of the names of libavformat's demuxer
    std::string_view endings;         ///< file name endings, the usual one first, separated by blanks
    std::span<const int> videoCodecs; ///< what players accept, preferred first
    std::span<const int> audioCodecs; ///< as above
    std::span<const StreamLimit> limits = {};
    std::span<const CodecTag> tags = {};
    bool needsPicture = false; ///< sound is cut to its frames
};

/// Every container with a name of ours, in the order in which a user is offered them, muxer here or not.
std::span<const FormatRow> FormatTable();
/// The row of a name of ours; null when there is none.
const FormatRow* FindFormat(std::string_view name);
/// The names of the containers whose muxer is here and takes a codec that has an encoder here, in the table's
/// order.
std::vector<std::string> WritableFormats();
/// Those of codecs (ours) that have an encoder here and that the container's muxer takes, in their order;
/// none when the muxer is not here.
std::vector<int> WritableCodecs(const FormatRow& format, std::span<const int> codecs);
/// Whether a file name ends as files of the container, or of one that the same demuxer reads, usually do.
bool HasEndingOf(const FormatRow& format, std::string_view path);
/// The name of the container that a file was opened as. Where several containers share a demuxer, the file
/// name's ending chooses, else the first of them stands for all. Empty for a demuxer that no container of
/// ours has.
std::string FormatNameOf(const AVInputFormat& demuxer, std::string_view path);

} // namespace Vexlor
