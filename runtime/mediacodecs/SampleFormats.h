#pragma once

#include <span>
#include <string_view>

extern "C"
{
#include <libavutil/samplefmt.h>
}

namespace Vexlor
{

/// One sample format that has a number of ours. Numbers stand in preset documents and are never given again.
struct SampleFormatRow
{
    int format; ///< VXSampleFormat_..., or kSampleFormat...
    AVSampleFormat avFormat;
    std::string_view name; ///< display name
    int bits = 0;          ///< of a sample, where libavutil keeps it in a larger one; 0: all of them
};

inline constexpr int kSampleFormatU8 = 0;
inline constexpr int kSampleFormatS16 = 1;
inline constexpr int kSampleFormatS32 = 2;
inline constexpr int kSampleFormatDBL = 4;
inline constexpr int kSampleFormatS64 = 5;
inline constexpr int kSampleFormatS24 = 6;
inline constexpr int kSampleFormatU8P = 10;
inline constexpr int kSampleFormatS16P = 11;
inline constexpr int kSampleFormatS32P = 12;
inline constexpr int kSampleFormatFLTP = 13;
inline constexpr int kSampleFormatDBLP = 14;
inline constexpr int kSampleFormatS64P = 15;
inline constexpr int kSampleFormatS24P = 16;

/// Every sample format with a number of ours, in the order of the numbers.
std::span<const SampleFormatRow> SampleFormatTable();
/// The number of a sample format of libavutil's; VXSampleFormat_None when it has none. A stream's own bits
/// tell 24-bit samples from those of 32 that libavutil keeps them in; 0 when they are not known.
int SampleFormatOf(AVSampleFormat avFormat, int bits = 0);
/// libavutil's sample format of a number; AV_SAMPLE_FMT_NONE when the number is not known.
AVSampleFormat AVSampleFormatOf(int format);
/// Bits of one sample; 16 for a number that is not known.
int SampleBitsOf(int format);

} // namespace Vexlor
