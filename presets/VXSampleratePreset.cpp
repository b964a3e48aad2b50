#include "IVXSampleratePreset.h"

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
    explicit VXSampleratePreset(int samplerate) : m_samplerate(samplerate) {}

    int Samplerate() const override { return m_samplerate; }
    std::shared_ptr<IVXSampleratePreset> Clone() const override
    {
        return MallocSampleratePreset(m_samplerate);
    }
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

private:
    int m_samplerate;
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
    return MallocSampleratePreset(json->GetValueInt(kSamplerate));
}

} // namespace Vexlor
