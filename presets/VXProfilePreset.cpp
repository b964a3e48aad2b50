#include "IVXProfilePreset.h"

#include "presets/VXValueList.h"

#include "IVXJsonValue.h"

#include <utility>

namespace Vexlor
{

namespace
{

constexpr std::string_view kProfile = "profile";
constexpr std::string_view kName = "name";

class VXProfilePreset final : public IVXProfilePreset
{
public:
    VXProfilePreset() = default;
    VXProfilePreset(int profile, std::string name) : m_profile(profile), m_name(std::move(name)) {}
    explicit VXProfilePreset(const IVXJsonValue& json)
        : m_profile(json.GetValueInt(kProfile)), m_name(json.GetValueString(kName))
    {
    }

    int Profile() const override { return m_profile; }
    std::string Name() const override { return m_name; }
    std::shared_ptr<IVXProfilePreset> Clone() const override
    {
        return std::make_shared<VXProfilePreset>(Copy());
    }
    VXProfilePreset Copy() const { return *this; }
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

private:
    int m_profile = 0;
    std::string m_name;
};

std::shared_ptr<IVXJsonValue> VXProfilePreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt(kProfile, m_profile);
    json->SetValueString(kName, m_name);
    return json;
}

} // namespace

std::shared_ptr<IVXProfilePreset> IVXProfilePreset::MallocProfilePreset()
{
    return MallocProfilePreset(0, {});
}

std::shared_ptr<IVXProfilePreset> IVXProfilePreset::MallocProfilePreset(int profile, const std::string& name)
{
    return std::make_shared<VXProfilePreset>(profile, name);
}

std::shared_ptr<IVXProfilePreset>
IVXProfilePreset::MallocProfilePreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    return std::make_shared<VXProfilePreset>(*json);
}

template <>
VXValueList<IVXProfilePreset> ReadValues(const IVXJsonValue& array)
{
    return ReadBlock<IVXProfilePreset, VXProfilePreset>(array);
}

template <>
VXValueList<IVXProfilePreset> CloneValues(const VXValueList<IVXProfilePreset>& list)
{
    return CloneBlock<IVXProfilePreset, VXProfilePreset>(list);
}

} // namespace Vexlor
