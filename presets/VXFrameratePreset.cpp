#include "IVXFrameratePreset.h"

#include "presets/VXValueList.h"

#include "IVXJsonValue.h"
#include "IVXRational.h"

#include <utility>

namespace Vexlor
{

namespace
{

constexpr std::string_view kNum = "num";
constexpr std::string_view kDen = "den";

class VXFrameratePreset final : public IVXFrameratePreset
{
public:
    VXFrameratePreset() = default;
    explicit VXFrameratePreset(std::shared_ptr<IVXRational> rate) : m_rate(std::move(rate)) {}
    explicit VXFrameratePreset(const IVXJsonValue& json)
    {
        const int num = json.GetValueInt(kNum);
        const int den = json.GetValueInt(kDen);
        m_rate = IVXRational::MallocRational(num, den);
    }

    std::shared_ptr<IVXRational> Framerate() const override { return m_rate; }
    std::shared_ptr<IVXFrameratePreset> Clone() const override
    {
        return std::make_shared<VXFrameratePreset>(Copy());
    }
    VXFrameratePreset Copy() const { return VXFrameratePreset(m_rate->Clone()); }
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

private:
    std::shared_ptr<IVXRational> m_rate;
};

std::shared_ptr<IVXJsonValue> VXFrameratePreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt(kNum, m_rate->Num());
    json->SetValueInt(kDen, m_rate->Den());
    return json;
}

} // namespace

bool IVXFrameratePreset::IsAutoValue() const
{
    const auto rate = Framerate();
    return !rate->IsValid() || rate->Num() == 0;
}

std::string IVXFrameratePreset::FormatFramerate() const
{
    return IsAutoValue() ? "Auto" : Framerate()->FormatAsFramerate();
}

std::shared_ptr<IVXFrameratePreset> IVXFrameratePreset::MallocFrameratePreset()
{
    return MallocFrameratePreset(IVXRational::MallocRational());
}

std::shared_ptr<IVXFrameratePreset>
IVXFrameratePreset::MallocFrameratePreset(std::shared_ptr<IVXRational> rate)
{
    return rate ? std::make_shared<VXFrameratePreset>(std::move(rate)) : MallocFrameratePreset();
}

std::shared_ptr<IVXFrameratePreset> IVXFrameratePreset::MallocFrameratePreset(int num, int den)
{
    return MallocFrameratePreset(IVXRational::MallocRational(num, den));
}

std::shared_ptr<IVXFrameratePreset>
IVXFrameratePreset::MallocFrameratePreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    return std::make_shared<VXFrameratePreset>(*json);
}

template <>
VXValueList<IVXFrameratePreset> ReadValues(const IVXJsonValue& array)
{
    return ReadBlock<IVXFrameratePreset, VXFrameratePreset>(array);
}

template <>
VXValueList<IVXFrameratePreset> CloneValues(const VXValueList<IVXFrameratePreset>& list)
{
    return CloneBlock<IVXFrameratePreset, VXFrameratePreset>(list);
}

} // namespace Vexlor
