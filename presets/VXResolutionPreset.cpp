#include "IVXResolutionPreset.h"

#include "presets/VXValueList.h"

#include "IVXJsonValue.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

constexpr std::string_view kWidth = "width";
constexpr std::string_view kHeight = "height";

class VXResolutionPreset final : public IVXResolutionPreset
{
public:
    VXResolutionPreset() = default;
    VXResolutionPreset(int width, int height) : m_width(width), m_height(height) {}
    explicit VXResolutionPreset(const IVXJsonValue& json)
        : m_width(json.GetValueInt(kWidth)), m_height(json.GetValueInt(kHeight))
    {
    }

    int Width() const override { return m_width; }
    int Height() const override { return m_height; }
    std::shared_ptr<IVXResolutionPreset> Clone() const override
    {
        return std::make_shared<VXResolutionPreset>(Copy());
    }
    VXResolutionPreset Copy() const { return *this; }
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

private:
    int m_width = 0;
    int m_height = 0;
};

std::shared_ptr<IVXJsonValue> VXResolutionPreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt(kWidth, m_width);
    json->SetValueInt(kHeight, m_height);
    return json;
}

} // namespace

// One missing side is enough: a 1920 x 0 preset is Auto.
bool IVXResolutionPreset::IsAutoValue() const { return Width() < 1 || Height() < 1; }

std::string IVXResolutionPreset::FormatResolution() const
{
    return IsAutoValue() ? "Auto" : VXMediaCodecFormatResolution(Width(), Height());
}

std::shared_ptr<IVXResolutionPreset> IVXResolutionPreset::MallocResolutionPreset()
{
    return MallocResolutionPreset(0, 0);
}

std::shared_ptr<IVXResolutionPreset> IVXResolutionPreset::MallocResolutionPreset(int width, int height)
{
    return std::make_shared<VXResolutionPreset>(width, height);
}

std::shared_ptr<IVXResolutionPreset>
IVXResolutionPreset::MallocResolutionPreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    return std::make_shared<VXResolutionPreset>(*json);
}

template <>
VXValueList<IVXResolutionPreset> ReadValues(const IVXJsonValue& array)
{
    return ReadBlock<IVXResolutionPreset, VXResolutionPreset>(array);
}

template <>
VXValueList<IVXResolutionPreset> CloneValues(const VXValueList<IVXResolutionPreset>& list)
{
    return CloneBlock<IVXResolutionPreset, VXResolutionPreset>(list);
}

} // namespace Vexlor
