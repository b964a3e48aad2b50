#include "IVXLevelPreset.h"

#include "IVXCodecs.h"
#include "presets/VXValueList.h"

#include "IVXJsonValue.h"

#include <utility>

namespace Vexlor
{

namespace
{

constexpr std::string_view kLevel = "level";
constexpr std::string_view kName = "name";

class VXLevelPreset final : public IVXLevelPreset
{
public:
    VXLevelPreset() = default;
    VXLevelPreset(int level, std::string name) : m_level(level), m_name(std::move(name)) {}
    explicit VXLevelPreset(const IVXJsonValue& json)
        : m_level(json.GetValueInt(kLevel)), m_name(json.GetValueString(kName))
    {
    }

    int Level() const override { return m_level; }
    std::string Name() const override { return m_name; }
    std::shared_ptr<IVXLevelPreset> Clone() const override { return std::make_shared<VXLevelPreset>(Copy()); }
    VXLevelPreset Copy() const { return *this; }
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

private:
    int m_level = 0;
    std::string m_name;
};

std::shared_ptr<IVXJsonValue> VXLevelPreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt(kLevel, m_level);
    json->SetValueString(kName, m_name);
    return json;
}

} // namespace

std::shared_ptr<IVXLevelPreset> IVXLevelPreset::MallocLevelPreset()
{
    return MallocLevelPreset(IVXCodecs::VXLevelUnknown, {});
}

std::shared_ptr<IVXLevelPreset> IVXLevelPreset::MallocLevelPreset(int level, const std::string& name)
{
    return std::make_shared<VXLevelPreset>(level, name);
}

std::shared_ptr<IVXLevelPreset>
IVXLevelPreset::MallocLevelPreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    return std::make_shared<VXLevelPreset>(*json);
}

template <>
VXValueList<IVXLevelPreset> ReadValues(const IVXJsonValue& array)
{
    return ReadBlock<IVXLevelPreset, VXLevelPreset>(array);
}

template <>
VXValueList<IVXLevelPreset> CloneValues(const VXValueList<IVXLevelPreset>& list)
{
    return CloneBlock<IVXLevelPreset, VXLevelPreset>(list);
}

} // namespace Vexlor
