#include "IVXSampleAspectPreset.h"

#include "IVXJsonValue.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Vexlor
{

namespace
{

using Aspect = IVXSampleAspectPreset;
using Ratio = std::shared_ptr<IVXRational> (*)(TVStandNorm, TVAspectType);

constexpr std::string_view kNum = "num";
constexpr std::string_view kDen = "den";
constexpr std::string_view kType = "type";

std::shared_ptr<IVXRational> SquareRatio(TVStandNorm, TVAspectType)
{
    return IVXRational::MallocRational(1, 1);
}

std::shared_ptr<IVXRational> DefaultRatio(TVStandNorm, TVAspectType) { return IVXRational::MallocRational(); }

constexpr Ratio kDVD = VXMediaCodecDVDSampleAspectRatio;
constexpr Ratio kHD1080 = VXMediaCodecDVHDSampleAspectRatio;
constexpr Ratio kHD720 = VXMediaCodecDVHD720PSampleAspectRatio;
constexpr auto kNTSC = TVStandNormNTSC;
constexpr auto kPAL = TVStandNormPAL;
constexpr auto k16x9 = TVAspectType16x9;
constexpr auto k4x3 = TVAspectType4x3;

struct AspectRow
{
    Aspect::AspectPresetType type;
    const char* name;
    Ratio ratio;
    TVStandNorm norm = kPAL;
    TVAspectType shape = k16x9;
};

// VCD and SVCD deliberately have names only: their ratio is the default one, as for a number that is no type.
constexpr std::array kAspects{
    AspectRow{Aspect::AspectDefault, "Default", SquareRatio},
    AspectRow{Aspect::AspectNTSCDVD16x9, "NTSC DVD 16:9", kDVD, kNTSC, k16x9},
    AspectRow{Aspect::AspectPALDVD16x9, "PAL DVD 16:9", kDVD, kPAL, k16x9},
    AspectRow{Aspect::AspectNTSCDVD4x3, "NTSC DVD 4:3", kDVD, kNTSC, k4x3},
    AspectRow{Aspect::AspectPALDVD4x3, "PAL DVD 4:3", kDVD, kPAL, k4x3},
    AspectRow{Aspect::AspectNTSCHD1080i16x9, "DVPRO HD1080i NTSC 16:9", kHD1080, kNTSC, k16x9},
    AspectRow{Aspect::AspectPALHD1080i16x9, "DVPRO HD1080i PAL 16:9", kHD1080, kPAL, k16x9},
    AspectRow{Aspect::AspectNTSCHD1080i4x3, "DVPRO HD1080i NTSC 4:3", kHD1080, kNTSC, k4x3},
    AspectRow{Aspect::AspectPALHD1080i4x3, "DVPRO HD1080i PAL 4:3", kHD1080, kPAL, k4x3},
    AspectRow{Aspect::AspectNTSCHD720p16x9, "DVPRO HD720p NTSC 16:9", kHD720, kNTSC, k16x9},
    AspectRow{Aspect::AspectPALHD720p16x9, "DVPRO HD720p PAL 16:9", kHD720, kPAL, k16x9},
    AspectRow{Aspect::AspectNTSCHD720p4x3, "DVPRO HD720p NTSC 4:3", kHD720, kNTSC, k4x3},
    AspectRow{Aspect::AspectPALHD720p4x3, "DVPRO HD720p PAL 4:3", kHD720, kPAL, k4x3},
    AspectRow{Aspect::AspectCustom, "Custom", DefaultRatio},
    AspectRow{Aspect::AspectNTSCVCD4x3, "VCD NTSC 4:3", DefaultRatio},
    AspectRow{Aspect::AspectPALVCD4x3, "VCD PAL 4:3", DefaultRatio},
    AspectRow{Aspect::AspectNTSCSVCD4x3, "SVCD NTSC 4:3", DefaultRatio},
    AspectRow{Aspect::AspectPALSVCD4x3, "SVCD PAL 4:3", DefaultRatio},
};

AspectRow RowOf(Aspect::AspectPresetType type)
{
    const auto row = std::ranges::find(kAspects, type, &AspectRow::type);
    return row != kAspects.end() ? *row : AspectRow{type, "Custom", DefaultRatio};
}

class VXSampleAspectPreset final : public IVXSampleAspectPreset
{
public:
    VXSampleAspectPreset(AspectPresetType type, std::shared_ptr<IVXRational> ratio)
        : m_type(type), m_ratio(std::move(ratio))
    {
    }

    std::shared_ptr<IVXRational> Ratio() const override
    {
        return m_type == AspectCustom ? m_ratio : AspectPresetRatio(m_type);
    }
    std::shared_ptr<IVXRational> Ratio() override { return std::as_const(*this).Ratio(); }
    void SetRatio(int num, int den) override { m_ratio = IVXRational::MallocRational(num, den); }
    void SetRatio(const std::shared_ptr<const IVXRational>& ratio) override
    {
        if (ratio)
            m_ratio = ratio->Clone();
    }
    std::shared_ptr<IVXSampleAspectPreset> Clone() const override
    {
        return std::make_shared<VXSampleAspectPreset>(m_type, m_ratio->Clone());
    }
    std::shared_ptr<IVXJsonValue> JsonValue() const override;
    void SetAspectType(AspectPresetType type) override { m_type = type; }
    AspectPresetType AspectType() const override { return m_type; }

private:
    AspectPresetType m_type;
    std::shared_ptr<IVXRational> m_ratio;
};

std::shared_ptr<IVXJsonValue> VXSampleAspectPreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt(kNum, m_ratio->Num());
    json->SetValueInt(kDen, m_ratio->Den());
    json->SetValueInt(kType, m_type);
    return json;
}

} // namespace

std::string IVXSampleAspectPreset::AspectPresetName(AspectPresetType type) { return RowOf(type).name; }

std::shared_ptr<IVXRational> IVXSampleAspectPreset::AspectPresetRatio(AspectPresetType type)
{
    const auto row = RowOf(type);
    return row.ratio(row.norm, row.shape);
}

std::string IVXSampleAspectPreset::AspectName() const { return AspectPresetName(AspectType()); }

// The argument is deliberately not consulted: a new preset always has square samples.
std::shared_ptr<IVXSampleAspectPreset> IVXSampleAspectPreset::MallocSampleAspectPreset(AspectPresetType)
{
    return std::make_shared<VXSampleAspectPreset>(AspectDefault, IVXRational::MallocRational());
}

std::shared_ptr<IVXSampleAspectPreset>
IVXSampleAspectPreset::MallocSampleAspectPreset(const std::shared_ptr<const IVXRational>& ratio)
{
    return std::make_shared<VXSampleAspectPreset>(AspectCustom,
                                                  ratio ? ratio->Clone() : IVXRational::MallocRational());
}

std::shared_ptr<IVXSampleAspectPreset>
IVXSampleAspectPreset::MallocSampleAspectPreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    const int num = json->GetValueInt(kNum);
    const int den = json->GetValueInt(kDen);
    const auto type = static_cast<AspectPresetType>(json->GetValueInt(kType));
    return std::make_shared<VXSampleAspectPreset>(type, IVXRational::MallocRational(num, den));
}

} // namespace Vexlor
