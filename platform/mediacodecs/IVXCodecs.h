#pragma once

#include "VXMediaCodecsExport.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Vexlor
{

class IVXRational;

/// What one codec accepts, and which bitrates suit it.
///
/// Sizes are in pixels, rates in Hz or frames per second, bitrates in bits per second. An empty list says
/// that the codec has no fixed values of that kind. Every query with an option takes an empty text; no option
/// is defined.
class VX_MEDIACODECS_API IVXCodecs
{
public:
    /// Grades of quality, lowest first.
    enum QualityLevel : int
    {
        QualityLevelLow = 0,
        QualityLevelNormal = 1,
        QualityLevelHigh = 2,
        QualityLevelBest = 3,
    };

    /// The level number that stands for "not told".
    static constexpr int VXLevelUnknown = -99;
    /// The profile number that stands for "not told".
    static constexpr int VXProfileUnknown = -99;

    /// The model of that codec for encoding (or decoding); empty for an identifier that is not known.
    static std::shared_ptr<IVXCodecs> MallocCodecs(int codecID, bool encoder);
    /// The display name of a codec, as GetCodecName; empty for an identifier that is not known.
    static std::string DefaultCodecName(int codecID, bool encoder);
    /// The display name of a grade; empty for a number outside the grades.
    static std::string QualityLevelName(QualityLevel level);

    /// The codec's display name: "H.264".
    virtual std::string GetCodecName() const = 0;
    /// VXCodecTypeVideo or VXCodecTypeAudio.
    virtual int GetCodecType() const = 0;
    /// The encoders (or decoders) that are here for the codec, preferred first; empty when it cannot be used.
    virtual std::vector<std::string> Names() const = 0;

    /// The smallest width that the codec takes; 0 for audio, as for the three that follow.
    virtual int MinWidth(const std::string& option) const = 0;
    /// The largest width.
    virtual int MaxWidth(const std::string& option) const = 0;
    /// The smallest height.
    virtual int MinHeight(const std::string& option) const = 0;
    /// The largest height.
    virtual int MaxHeight(const std::string& option) const = 0;
    /// The (width, height) pairs of a codec with fixed sizes; empty when every size within the limits is
    /// taken.
    virtual std::vector<std::pair<int, int>> SupportedResolutions(const std::string& option) const = 0;

    /// The lowest frame rate, a new object; 0/1 for audio, as for the highest.
    virtual std::shared_ptr<IVXRational> MinFrameRate(const std::string& option) const = 0;
    /// The highest frame rate, a new object.
    virtual std::shared_ptr<IVXRational> MaxFrameRate(const std::string& option) const = 0;
    /// The rates of a codec with fixed frame rates, new objects; empty when every rate within the limits is
    /// taken.
    virtual std::vector<std::shared_ptr<IVXRational>>
    SupportedFrameRates(const std::string& option) const = 0;

    /// The sample rates, as a user would be offered them.
    virtual std::vector<int> SupportedSampleRates(const std::string& option) const = 0;
    /// The channel layouts, masks with one bit a loudspeaker.
    virtual std::vector<std::uint64_t> SupportedChannelLayouts(const std::string& option) const = 0;
    /// The pixel formats of a video codec, the sample formats of an audio codec, best known first.
    virtual std::vector<int> SupportedFormats(const std::string& option) const = 0;
    /// The profile numbers.
    virtual std::vector<int> SupportedProfiles(const std::string& option) const = 0;
    /// The level numbers, lowest first.
    virtual std::vector<int> SupportedLevels(const std::string& option) const = 0;

    /// The nearest size that the codec takes; the size itself when it fits, a usable one for 0 x 0.
    virtual std::pair<int, int> BestResolutionFor(int width, int height, const std::string& option) const = 0;
    /// The nearest frame rate that the codec takes; a usable one for a rate that is invalid, 0 or empty.
    virtual std::shared_ptr<IVXRational> BestFrameRateForInput(const std::shared_ptr<const IVXRational>& rate,
                                                               const std::string& option) const = 0;
    /// The nearest sample rate that the codec takes, upward on a tie; a usable one for rates below 1.
    virtual int BestSampleRateForInput(int sampleRate, const std::string& option) const = 0;
    /// The same layout when the codec takes it, else the nearest by its number of channels.
    virtual std::uint64_t BestChannelLayoutForInput(std::uint64_t layout,
                                                    const std::string& option) const = 0;

    /// The (lowest, highest) bitrate that suits the picture. An audio codec, although asked with a picture,
    /// answers with its own range: that of the sound which it offers first, as a rule stereo at 48 kHz.
    virtual std::pair<int, int> BitrateRangeFor(int width, int height,
                                                const std::shared_ptr<const IVXRational>& frameRate,
                                                int format, const std::string& option) const = 0;
    /// The bitrate of a picture stream at a grade; at least 1.
    virtual int BestBitrateFor(int width, int height, const std::shared_ptr<const IVXRational>& frameRate,
                               int format, QualityLevel level, const std::string& option) const = 0;
    /// The bitrate of a sound stream at a grade; at least 1.
    virtual int BestBitrateFor(int sampleRate, std::uint64_t layout, int format, QualityLevel level,
                               const std::string& option) const = 0;
    /// The grade that a picture stream's bitrate comes nearest to.
    virtual QualityLevel EstQualityWithBitrate(int bitrate, int width, int height,
                                               const std::shared_ptr<const IVXRational>& frameRate,
                                               int format, const std::string& option) const = 0;
    /// The grade that a sound stream's bitrate comes nearest to.
    virtual QualityLevel EstQualityWithBitrate(int bitrate, int sampleRate, std::uint64_t layout, int format,
                                               const std::string& option) const = 0;

    /// The display name of one of the codec's profiles; empty for a number that it does not know.
    virtual std::string ProfileName(int profile) const = 0;
    /// The display name of one of the codec's levels; empty for a number that it does not know.
    virtual std::string LevelName(int level) const = 0;
    /// The only bitrates that the codec takes, lowest first; empty when any is taken.
    virtual std::vector<int> SupportedBitrates() const = 0;

protected:
    ~IVXCodecs() = default;
};

} // namespace Vexlor
