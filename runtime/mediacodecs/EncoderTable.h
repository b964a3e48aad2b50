#pragma once

#include <array>
#include <string_view>

namespace Vexlor
{

/// How one encoder of libavcodec is told what the stream's record holds.
struct EncoderRow
{
    std::string_view encoder; ///< libavcodec's name
    /// The option that takes a profile's text; empty: libavcodec's number is set where a profile has no text.
    std::string_view profileOption = {};
    std::string_view levelOption = {}; ///< as above, of a level's text
    std::string_view always = {};      ///< options that are set whatever the stream is: "name=value"
    std::string_view constant = {};    ///< options for a constant bitrate, beside its bounds
    bool isUnbounded = false;          ///< refuses a constant bitrate and bounds
    bool hasNoFilling = false;         ///< fails where pictures take less than the lowest bitrate
    int mostBitrate = 0;               ///< bits a second; 0: any
    bool fullRange = false;            ///< takes limited range only as an unofficial extension
    std::array<int, 4> qualities = {}; ///< its "quality" by grade, where it knows no bitrate; 0: it knows
};

/// The row of an encoder; one with its name alone for an encoder that needs no more.
EncoderRow FindEncoder(std::string_view encoder);

} // namespace Vexlor
