#include "IVXCodecs.h"

#include "BitrateModel.h"
#include "CodecCapabilities.h"
#include "IVXRational.h"
#include "LevelTable.h"
#include "Lookup.h"
#include "ProfileTable.h"
#include "Snapping.h"
#include "VXMediaCodecs.h"

#include <array>
#include <limits>

namespace Vexlor
{

namespace
{

constexpr double kNoRate = std::numeric_limits<double>::quiet_NaN();

std::shared_ptr<IVXRational> ToRational(AVRational rate)
{
    return IVXRational::MallocRational(rate.num, rate.den);
}

template <class Row>
std::string NameOf(std::span<const Row> rows, int number)
{
    const auto* row = FindRow(rows, &Row::number, number);
    return row ? std::string(row->name) : std::string();
}

/// One codec's shared capabilities, seen as an encoder's or a decoder's.
class VXCodecs final : public IVXCodecs
{
public:
    VXCodecs(const CodecCapabilities& capabilities, bool encoder) : m_all(capabilities), m_encoder(encoder) {}

    std::string GetCodecName() const override { return std::string(m_all.codec->name); }
    int GetCodecType() const override { return m_all.codec->type; }
    std::vector<std::string> Names() const override { return m_encoder ? m_all.encoders : m_all.decoders; }

    int MinWidth(const std::string& /*option*/) const override { return Limits().min.width; }
    int MaxWidth(const std::string& /*option*/) const override { return Limits().max.width; }
    int MinHeight(const std::string& /*option*/) const override { return Limits().min.height; }
    int MaxHeight(const std::string& /*option*/) const override { return Limits().max.height; }
    std::vector<std::pair<int, int>> SupportedResolutions(const std::string& option) const override;

    std::shared_ptr<IVXRational> MinFrameRate(const std::string& option) const override;
    std::shared_ptr<IVXRational> MaxFrameRate(const std::string& option) const override;
    std::vector<std::shared_ptr<IVXRational>> SupportedFrameRates(const std::string& option) const override;

    std::vector<int> SupportedSampleRates(const std::string& /*option*/) const override
    {
        return m_all.sampleRates;
    }
    std::vector<std::uint64_t> SupportedChannelLayouts(const std::string& /*option*/) const override
    {
        return m_all.layouts;
    }
    std::vector<int> SupportedFormats(const std::string& /*option*/) const override { return m_all.formats; }
    std::vector<int> SupportedProfiles(const std::string& /*option*/) const override
    {
        return m_all.profiles;
    }
    std::vector<int> SupportedLevels(const std::string& /*option*/) const override { return m_all.levels; }

    std::pair<int, int> BestResolutionFor(int width, int height, const std::string& option) const override;
    std::shared_ptr<IVXRational> BestFrameRateForInput(const std::shared_ptr<const IVXRational>& rate,
                                                       const std::string& option) const override;
    int BestSampleRateForInput(int sampleRate, const std::string& /*option*/) const override
    {
        return SnapSampleRate(sampleRate, m_all.sampleRates);
    }
    std::uint64_t BestChannelLayoutForInput(std::uint64_t layout,
                                            const std::string& /*option*/) const override
    {
        return SnapLayout(layout, m_all.layouts);
    }

    std::pair<int, int> BitrateRangeFor(int width, int height,
                                        const std::shared_ptr<const IVXRational>& frameRate, int format,
                                        const std::string& option) const override;
    int BestBitrateFor(int width, int height, const std::shared_ptr<const IVXRational>& frameRate, int format,
                       QualityLevel level, const std::string& option) const override;
    int BestBitrateFor(int sampleRate, std::uint64_t layout, int format, QualityLevel level,
                       const std::string& option) const override;
    QualityLevel EstQualityWithBitrate(int bitrate, int width, int height,
                                       const std::shared_ptr<const IVXRational>& frameRate, int format,
                                       const std::string& option) const override;
    QualityLevel EstQualityWithBitrate(int bitrate, int sampleRate, std::uint64_t layout, int format,
                                       const std::string& option) const override;

    std::string ProfileName(int profile) const override
    {
        return NameOf(ProfilesOf(m_all.codec->id), profile);
    }
    std::string LevelName(int level) const override { return NameOf(LevelsOf(m_all.codec->id), level); }
    // Deliberately empty for codecs of legal rates too: a listed codec always gets its last one, whatever the
    // grade.
    std::vector<int> SupportedBitrates() const override { return {}; }

private:
    bool IsVideo() const { return m_all.codec->type == VXCodecTypeVideo; }
    const VideoLimits& Limits() const { return m_all.codec->video; }

    const CodecCapabilities& m_all;
    bool m_encoder;
};

PictureStream Picture(int width, int height, const IVXRational* frameRate, int format)
{
    return {width, height, frameRate ? frameRate->GetDoubleValue() : kNoRate, format};
}

std::vector<std::pair<int, int>> VXCodecs::SupportedResolutions(const std::string& /*option*/) const
{
    std::vector<std::pair<int, int>> sizes;
    for (const auto size : Limits().sizes)
        sizes.emplace_back(size.width, size.height);
    return sizes;
}

// Sound has the limits 0 to 0, which no frame rate lies within, so that none is offered for it.
std::shared_ptr<IVXRational> VXCodecs::MinFrameRate(const std::string& /*option*/) const
{
    return IsVideo() ? ToRational(Limits().minRate) : IVXRational::MallocRational(0, 1);
}

std::shared_ptr<IVXRational> VXCodecs::MaxFrameRate(const std::string& /*option*/) const
{
    return IsVideo() ? ToRational(Limits().maxRate) : IVXRational::MallocRational(0, 1);
}

std::vector<std::shared_ptr<IVXRational>> VXCodecs::SupportedFrameRates(const std::string& /*option*/) const
{
    std::vector<std::shared_ptr<IVXRational>> rates;
    std::ranges::transform(Limits().rates, std::back_inserter(rates), ToRational);
    return rates;
}

std::pair<int, int> VXCodecs::BestResolutionFor(int width, int height, const std::string& /*option*/) const
{
    if (!IsVideo())
        return {0, 0};
    const auto size = SnapSize({width, height}, Limits(), m_all.block);
    return {size.width, size.height};
}

std::shared_ptr<IVXRational> VXCodecs::BestFrameRateForInput(const std::shared_ptr<const IVXRational>& rate,
                                                             const std::string& /*option*/) const
{
    if (!IsVideo())
        return IVXRational::MallocRational();
    return ToRational(
        SnapFrameRate(rate ? AVRational{rate->Num(), rate->Den()} : AVRational{0, 1}, Limits()));
}

std::pair<int, int> VXCodecs::BitrateRangeFor(int width, int height,
                                              const std::shared_ptr<const IVXRational>& frameRate, int format,
                                              const std::string& /*option*/) const
{
    return IsVideo() ? VideoBitrateRange(m_all, Picture(width, height, frameRate.get(), format))
                     : AudioBitrateRange(m_all);
}

int VXCodecs::BestBitrateFor(int width, int height, const std::shared_ptr<const IVXRational>& frameRate,
                             int format, QualityLevel level, const std::string& /*option*/) const
{
    return VideoBitrate(m_all, Picture(width, height, frameRate.get(), format), level);
}

int VXCodecs::BestBitrateFor(int sampleRate, std::uint64_t layout, int format, QualityLevel level,
                             const std::string& /*option*/) const
{
    return AudioBitrate(m_all, {sampleRate, layout, format}, level);
}

IVXCodecs::QualityLevel VXCodecs::EstQualityWithBitrate(int bitrate, int width, int height,
                                                        const std::shared_ptr<const IVXRational>& frameRate,
                                                        int format, const std::string& /*option*/) const
{
    return VideoGrade(m_all, Picture(width, height, frameRate.get(), format), bitrate);
}

IVXCodecs::QualityLevel VXCodecs::EstQualityWithBitrate(int bitrate, int sampleRate, std::uint64_t layout,
                                                        int format, const std::string& /*option*/) const
{
    return AudioGrade(m_all, {sampleRate, layout, format}, bitrate);
}

} // namespace

std::shared_ptr<IVXCodecs> IVXCodecs::MallocCodecs(int codecID, bool encoder)
{
    const auto* capabilities = CapabilitiesOf(codecID);
    return capabilities ? std::make_shared<VXCodecs>(*capabilities, encoder) : nullptr;
}

std::string IVXCodecs::DefaultCodecName(int codecID, bool /*encoder*/)
{
    const auto* codec = FindCodec(codecID);
    return codec ? std::string(codec->name) : std::string();
}

std::string IVXCodecs::QualityLevelName(QualityLevel level)
{
    constexpr std::array kNames{"Low", "Normal", "High", "Best"};
    const auto index = static_cast<std::size_t>(level);
    return index < kNames.size() ? kNames.at(index) : std::string();
}

} // namespace Vexlor
