#include "IVXSampleFmtPreset.h"

#include "presets/VXValueList.h"

#include "IVXJsonValue.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

constexpr std::string_view kIsAudio = "isAudio";
constexpr std::string_view kFormat = "format";

class VXSampleFmtPreset final : public IVXSampleFmtPreset
{
public:
    VXSampleFmtPreset() = default;
    VXSampleFmtPreset(int format, bool isAudio) : m_format(format), m_isAudio(isAudio) {}

    bool IsAutoValue() const override
    {
        return m_format == (m_isAudio ? VXSampleFormat_None : VXPixFormat_None);
    }
    bool IsAudio() const override { return m_isAudio; }
    int Format() const override { return m_format; }
    std::string FormatSampleFmt() const override;
    std::shared_ptr<IVXSampleFmtPreset> Clone() const override
    {
        return std::make_shared<VXSampleFmtPreset>(Copy());
    }
    VXSampleFmtPreset Copy() const { return *this; }
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

private:
    int m_format = VXPixFormat_None;
    bool m_isAudio = false;
};

std::string VXSampleFmtPreset::FormatSampleFmt() const
{
    if (IsAutoValue())
        return "Auto";
    return m_isAudio ? SampleFormatName(m_format) : PixFormatName(m_format);
}

std::shared_ptr<IVXJsonValue> VXSampleFmtPreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueBool(kIsAudio, m_isAudio);
    json->SetValueInt(kFormat, m_format);
    return json;
}

} // namespace

// The argument is deliberately not consulted: the Auto entry is a video one for either kind.
std::shared_ptr<IVXSampleFmtPreset> IVXSampleFmtPreset::MallocSampleFmtPreset(bool)
{
    return MallocSampleFmtPreset(VXPixFormat_None, false);
}

std::shared_ptr<IVXSampleFmtPreset> IVXSampleFmtPreset::MallocSampleFmtPreset(int format, bool isAudio)
{
    return std::make_shared<VXSampleFmtPreset>(format, isAudio);
}

// A missing format is the pixel formats' none for audio too: 0 would be a format of its own.
std::shared_ptr<IVXSampleFmtPreset>
IVXSampleFmtPreset::MallocSampleFmtPreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    const bool isAudio = json->HasKey(kIsAudio) && json->GetValueBool(kIsAudio);
    const int format = json->HasKey(kFormat) ? json->GetValueInt(kFormat) : VXPixFormat_None;
    return MallocSampleFmtPreset(format, isAudio);
}

VXValueList<IVXSampleFmtPreset> SampleFmtValues(const std::vector<int>& formats, bool isAudio)
{
    // The pixel formats' none stands for Auto in audio lists too, deliberately.
    const std::size_t autos = formats.size() >= 2 ? 1 : 0;
    const auto make = [&](std::size_t i)
    { return VXSampleFmtPreset(i < autos ? VXPixFormat_None : formats[i - autos], isAudio); };
    return VXValueList<IVXSampleFmtPreset>::Block<VXSampleFmtPreset>(formats.size() + autos, make);
}

template <>
VXValueList<IVXSampleFmtPreset> CloneValues(const VXValueList<IVXSampleFmtPreset>& list)
{
    return CloneBlock<IVXSampleFmtPreset, VXSampleFmtPreset>(list);
}

} // namespace Vexlor
