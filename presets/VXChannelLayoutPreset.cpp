#include "IVXChannelLayoutPreset.h"

#include "presets/VXValueList.h"

#include "IVXJsonValue.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

constexpr std::string_view kChLayout = "chLayout";

class VXChannelLayoutPreset final : public IVXChannelLayoutPreset
{
public:
    VXChannelLayoutPreset() = default;
    explicit VXChannelLayoutPreset(std::uint64_t layout) : m_chLayout(layout) {}
    explicit VXChannelLayoutPreset(const IVXJsonValue& json)
        : m_chLayout(static_cast<std::uint64_t>(json.GetValueInt64(kChLayout)))
    {
    }

    std::uint64_t Layout() const override { return m_chLayout; }
    std::shared_ptr<IVXChannelLayoutPreset> Clone() const override
    {
        return std::make_shared<VXChannelLayoutPreset>(Copy());
    }
    VXChannelLayoutPreset Copy() const { return *this; }
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

private:
    std::uint64_t m_chLayout = 0;
};

std::shared_ptr<IVXJsonValue> VXChannelLayoutPreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt64(kChLayout, static_cast<std::int64_t>(m_chLayout));
    return json;
}

} // namespace

bool IVXChannelLayoutPreset::IsAutoValue() const { return Layout() == 0; }

std::string IVXChannelLayoutPreset::FormatLayout() const
{
    return IsAutoValue() ? "Auto" : VXChannelLayoutName(Layout());
}

std::shared_ptr<IVXChannelLayoutPreset> IVXChannelLayoutPreset::MallocChannelLayoutPreset()
{
    return MallocChannelLayoutPreset(std::uint64_t{0});
}

std::shared_ptr<IVXChannelLayoutPreset>
IVXChannelLayoutPreset::MallocChannelLayoutPreset(std::uint64_t layout)
{
    return std::make_shared<VXChannelLayoutPreset>(layout);
}

std::shared_ptr<IVXChannelLayoutPreset>
IVXChannelLayoutPreset::MallocChannelLayoutPreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    return std::make_shared<VXChannelLayoutPreset>(*json);
}

template <>
VXValueList<IVXChannelLayoutPreset> ReadValues(const IVXJsonValue& array)
{
    return ReadBlock<IVXChannelLayoutPreset, VXChannelLayoutPreset>(array);
}

template <>
VXValueList<IVXChannelLayoutPreset> CloneValues(const VXValueList<IVXChannelLayoutPreset>& list)
{
    return CloneBlock<IVXChannelLayoutPreset, VXChannelLayoutPreset>(list);
}

} // namespace Vexlor
