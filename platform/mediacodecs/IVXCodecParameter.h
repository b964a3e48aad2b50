#pragma once

#include "VXMediaCodecsExport.h"

#include <cstdint>
#include <memory>

namespace Vexlor
{

class IVXCodecs;
class IVXRational;

/// The parameters of one stream: a source's, or an output's that an encoder is opened with.
///
/// Sizes are in pixels, rates in Hz or frames per second, bitrates in bits per second. Setters store what
/// they are given.
class VX_MEDIACODECS_API IVXCodecParameter
{
public:
    /// A record for that codec. Every number starts at 0 but the format (none), profile and level (unknown);
    /// the frame rate is 0/1, the sample aspect ratio 1/1. Never empty; the codec is fixed for the record's
    /// life.
    static std::shared_ptr<IVXCodecParameter> MallocCodecParamter(int codecID);
    /// The four-character code of four bytes, the first one lowest, as containers store it.
    static std::uint32_t MakeCodecTag(std::uint8_t first, std::uint8_t second, std::uint8_t third,
                                      std::uint8_t fourth);

    /// The stream's codec.
    virtual int GetCodecID() const = 0;
    /// VXCodecTypeVideo, VXCodecTypeAudio, or VXCodecTypeUnknown when the codec is not known.
    virtual int GetCodecType() const = 0;
    /// The model of the stream's codec for encoding (or decoding); empty when the codec is not known.
    virtual std::shared_ptr<IVXCodecs> GetCodecs(bool encoder) const = 0;
    /// The container's codec tag, as MakeCodecTag makes it; 0 when the container is to choose.
    virtual std::uint32_t GetCodecTag() const = 0;
    /// Sets the container's codec tag.
    virtual void SetCodecTag(std::uint32_t tag) = 0;

    /// Width of the stored frame.
    virtual int GetWidth() const = 0;
    /// Sets the width of the stored frame.
    virtual void SetWidth(int width) = 0;
    /// Height of the stored frame.
    virtual int GetHeight() const = 0;
    /// Sets the height of the stored frame.
    virtual void SetHeight(int height) = 0;
    /// Width as displayed: after the sample aspect ratio and, for a source, its rotation.
    virtual int GetDisplayWidth() const = 0;
    /// Height as displayed.
    virtual int GetDisplayHeight() const = 0;
    /// The sample aspect ratio; never empty.
    virtual std::shared_ptr<const IVXRational> GetAspectRatio() const = 0;
    /// Sets the sample aspect ratio, which is shared; an empty handle changes nothing.
    virtual void SetAspectRatio(const std::shared_ptr<const IVXRational>& ratio) = 0;
    /// The frame rate; never empty, numerator 0 when unknown.
    virtual std::shared_ptr<const IVXRational> GetFrameRate() const = 0;
    /// Sets the frame rate, which is shared; an empty handle changes nothing.
    virtual void SetFramePerSecond(const std::shared_ptr<const IVXRational>& rate) = 0;

    /// The pixel format of a video stream, the sample format of an audio stream.
    virtual int GetFormat() const = 0;
    /// Sets the pixel or sample format.
    virtual void SetFormat(int format) = 0;
    /// The codec's profile number.
    virtual int GetProfile() const = 0;
    /// Sets the profile number.
    virtual void SetProfile(int profile) = 0;
    /// The codec's level number.
    virtual int GetLevel() const = 0;
    /// Sets the level number.
    virtual void SetLevel(int level) = 0;

    /// The bitrate; 0 when unknown.
    virtual int GetBitrate() const = 0;
    /// Sets the target bitrate.
    virtual void SetBitrate(int bitrate) = 0;
    /// Upper bound of the bitrate; 0 when there is none.
    virtual int GetMaxBitrate() const = 0;
    /// Sets the upper bound of the bitrate.
    virtual void SetMaxBitrate(int bitrate) = 0;
    /// Lower bound of the bitrate; 0 when there is none.
    virtual int GetMinBitrate() const = 0;
    /// Sets the lower bound of the bitrate.
    virtual void SetMinBitrate(int bitrate) = 0;
    /// Rate control: 0 variable, 1 constant; other numbers are kept for the encoder.
    virtual int GetBitrateMode() const = 0;
    /// Sets the rate control.
    virtual void SetBitrateMode(int mode) = 0;

    /// The sample rate; 0 when unknown.
    virtual int GetSampleRate() const = 0;
    /// Sets the sample rate.
    virtual void SetSampleRate(int sampleRate) = 0;
    /// The channel layout, a mask with one bit a loudspeaker; 0 when unknown.
    virtual std::uint64_t GetChannelLayout() const = 0;
    /// Sets the channel layout.
    virtual void SetChannelLayout(std::uint64_t layout) = 0;

protected:
    ~IVXCodecParameter() = default;
};

} // namespace Vexlor
