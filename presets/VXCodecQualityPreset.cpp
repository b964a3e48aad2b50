#include "IVXCodecQualityPreset.h"

#include "presets/VXValueList.h"

#include "IVXJsonValue.h"

#include <algorithm>

namespace Vexlor
{

namespace
{

constexpr std::string_view kQualityValue = "qualityValue";
constexpr std::string_view kBitrate = "bitrate";
constexpr std::string_view kMode = "mode";
constexpr std::string_view kMinBitrate = "minBitrate";

constexpr int kAuto = -1;
constexpr int kNoBitrate = -1;
constexpr int kConstantBitrate = 1;

struct Quality
{
    int value = kAuto;
    int bitrate = kNoBitrate;
    int minBitrate = 0;
    int mode = 0;
};

class VXCodecQualityPreset final : public IVXCodecQualityPreset
{
public:
    VXCodecQualityPreset() = default;
    explicit VXCodecQualityPreset(const Quality& quality) : m_quality(quality) {}

    IVXCodecs::QualityLevel QualityLevel() const override
    {
        return static_cast<IVXCodecs::QualityLevel>(
            std::clamp<int>(m_quality.value, IVXCodecs::QualityLevelLow, IVXCodecs::QualityLevelBest));
    }
    int QualityValue() const override { return m_quality.value; }
    bool IsCustom() const override { return m_quality.bitrate != kNoBitrate; }
    void SetMode(int mode) override { m_quality.mode = mode; }
    int Mode() const override { return m_quality.mode; }
    int Bitrate() const override { return m_quality.bitrate; }
    void SetBitrate(int bitrate) override { m_quality.bitrate = bitrate; }
    int MaxBitrate() const override { return m_quality.bitrate; }
    void SetMaxBitrate(int bitrate) override { m_quality.bitrate = bitrate; }
    int MinBitrate() const override { return m_quality.minBitrate; }
    void SetMinBitrate(int bitrate) override { m_quality.minBitrate = bitrate; }
    std::pair<int, int> BitrateRange() const override { return {m_quality.minBitrate, m_quality.bitrate}; }
    // Deliberately no mirror of BitrateRange: only the second number counts, and it is the lower bound.
    void SetBitrateRange(std::pair<int, int> range) override { m_quality.minBitrate = range.second; }
    std::shared_ptr<IVXCodecQualityPreset> Clone() const override
    {
        return std::make_shared<VXCodecQualityPreset>(Copy());
    }
    VXCodecQualityPreset Copy() const { return *this; }
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

private:
    Quality m_quality;
};

// Lower bound and mode are deliberately not written: a reloaded setting starts without them.
std::shared_ptr<IVXJsonValue> VXCodecQualityPreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt(kQualityValue, m_quality.value);
    json->SetValueInt(kBitrate, m_quality.bitrate);
    return json;
}

} // namespace

bool IVXCodecQualityPreset::IsAutoValue() const { return QualityValue() < 0; }

std::string IVXCodecQualityPreset::FormatQuality()
{
    if (IsCustom())
        return "Custom";
    return IsAutoValue() ? "Auto" : IVXCodecs::QualityLevelName(QualityLevel());
}

std::shared_ptr<IVXCodecQualityPreset> IVXCodecQualityPreset::MallocCodecQualityPreset()
{
    return std::make_shared<VXCodecQualityPreset>(Quality{});
}

std::shared_ptr<IVXCodecQualityPreset>
IVXCodecQualityPreset::MallocCodecQualityPreset(IVXCodecs::QualityLevel level)
{
    return std::make_shared<VXCodecQualityPreset>(Quality{.value = level});
}

std::shared_ptr<IVXCodecQualityPreset> IVXCodecQualityPreset::MallocCodecQualityPreset(int bitrate)
{
    return std::make_shared<VXCodecQualityPreset>(
        Quality{.bitrate = bitrate, .minBitrate = bitrate, .mode = kConstantBitrate});
}

std::shared_ptr<IVXCodecQualityPreset>
IVXCodecQualityPreset::MallocCodecQualityPreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    Quality quality;
    quality.value = json->GetValueInt(kQualityValue);
    quality.bitrate = json->GetValueInt(kBitrate);
    quality.mode = json->GetValueInt(kMode);
    quality.minBitrate = json->GetValueInt(kMinBitrate);
    return std::make_shared<VXCodecQualityPreset>(quality);
}

template <>
VXValueList<IVXCodecQualityPreset> CloneValues(const VXValueList<IVXCodecQualityPreset>& list)
{
    return CloneBlock<IVXCodecQualityPreset, VXCodecQualityPreset>(list);
}

} // namespace Vexlor
