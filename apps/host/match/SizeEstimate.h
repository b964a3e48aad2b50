#pragma once

#include <cstdint>
#include <string>

namespace Vexlor
{
class IVXCodecParameter;
class IVXFormatParameter;
} // namespace Vexlor

namespace Vexlor::Tool
{

/// A number of bytes that is not known exactly.
struct SizeRange
{
    double least = 0;
    double likely = 0;
    double most = 0;
};

/// What a file of some seconds will take.
struct SizeEstimate
{
    SizeRange video;
    SizeRange audio;
    double container = 0; ///< likely bytes beside the streams

    SizeRange Total() const;
};

/// Predicts the size of an output from its bitrates.
///
/// The range is that of the encoders' rate control: a tenth of a second for what is stored, a few percent for
/// a constant bitrate, a fifth or more for a variable one, which simple pictures do not use up and short
/// clips go beyond; lossless streams take what their content needs.
SizeEstimate EstimateSize(const IVXFormatParameter& output, double seconds);

/// Whether the stream becomes smaller with a lower bitrate: what is stored, lossless or decided by a profile
/// does not, nor does a picture whose encoder goes by quality alone.
bool FollowsBitrate(const IVXCodecParameter& stream);
/// The bitrate that the encoder takes in place of the stream's, which is the same where it takes any.
int TakenBitrate(const IVXCodecParameter& stream);

/// Bytes of a text such as "25MB", "1.5 GB", "700MiB" or "3000000": k, M and G are powers of 1000, Ki, Mi and
/// Gi of 1024. Throws WrongUsage for anything else, and for less than a byte.
std::int64_t SizeOfText(const std::string& text);
/// "1.50 MB".
std::string SizeOfBytes(double bytes);

} // namespace Vexlor::Tool
