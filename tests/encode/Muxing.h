#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Vexlor
{

struct EncodedStream;

/// A stream and the tag that the container gives it, 0 for the muxer's choice.
struct MuxedStream
{
    const EncodedStream* encoded;
    std::uint32_t tag;
};

/// Writes a file of those streams with that muxer of libavformat's. FFmpeg's reason when it could not be
/// written, else empty.
std::string WriteFile(const std::vector<MuxedStream>& streams, const std::string& muxer,
                      const std::string& path);
/// True when the muxer keeps a codec's headers in the container's own.
bool WantsGlobalHeader(const std::string& muxer);

} // namespace Vexlor
