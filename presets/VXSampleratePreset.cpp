#include "IVXSampleratePreset.h"

#include "presets/VXValueList.h"

#include "IVXJsonValue.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

constexpr std::string_view kSamplerate = "samplerate";

class VXSampleratePreset final : public IVXSampleratePreset
{
public:
    VXSampleratePreset() = default;
    explicit VXSampleratePreset(int samplerate) : m_samplerate(samplerate) {}
    explicit VXSampleratePreset(const IVXJsonValue& json) : m_samplerate(json.GetValueInt(kSamplerate)) {}

    int Samplerate() const override { return m_samplerate; }
    std::shared_ptr<IVXSampleratePreset> Clone() const override
    {
        return std::make_shared<VXSampleratePreset>(Copy());
    }
    VXSampleratePreset Copy() const { return *this; }
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

private:
    int m_samplerate = 0;
};

std::shared_ptr<IVXJsonValue> VXSampleratePreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt(kSamplerate, m_samplerate);
    return json;
}

} // namespace

bool IVXSampleratePreset::IsAutoValue() const { return Samplerate() < 1; }

std::string IVXSampleratePreset::FormatSamplerate() const
{
    return Samplerate() > 0 ? VXMediaCodecFormatSamplerate(Samplerate()) : "Auto";
}

std::shared_ptr<IVXSampleratePreset> IVXSampleratePreset::MallocSampleratePreset()
{
    return MallocSampleratePreset(0);
}

std::shared_ptr<IVXSampleratePreset> IVXSampleratePreset::MallocSampleratePreset(int samplerate)
{
    return std::make_shared<VXSampleratePreset>(samplerate);
}

std::shared_ptr<IVXSampleratePreset>
IVXSampleratePreset::MallocSampleratePreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    return std::make_shared<VXSampleratePreset>(*json);
}

template <>
VXValueList<IVXSampleratePreset> ReadValues(const IVXJsonValue& array)
{
    return ReadBlock<IVXSampleratePreset, VXSampleratePreset>(array);
}

template <>
VXValueList<IVXSampleratePreset> CloneValues(const VXValueList<IVXSampleratePreset>& list)
{
    return CloneBlock<IVXSampleratePreset, VXSampleratePreset>(list);
}

} // namespace Vexlor
