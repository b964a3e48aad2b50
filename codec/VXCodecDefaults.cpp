#include "codec/VXCodecDefaults.h"

#include "IVXChannelLayoutPreset.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFrameratePreset.h"
#include "IVXLevelPreset.h"
#include "IVXProfilePreset.h"
#include "IVXRational.h"
#include "IVXResolutionPreset.h"
#include "IVXSampleFmtPreset.h"
#include "IVXSampleratePreset.h"
#include "VXMediaCodecs.h"

#include <array>
#include <utility>

namespace Vexlor
{

namespace
{

using Pair = std::pair<int, int>;

// Offered where a codec has no sizes of its own, as far as its limits allow.
constexpr std::array kResolutions{
    Pair{8192, 4320}, Pair{7680, 4320}, Pair{5120, 2880}, Pair{5120, 2160}, Pair{4096, 2160},
    Pair{3840, 2160}, Pair{2048, 1536}, Pair{2048, 1152}, Pair{1920, 1440}, Pair{1920, 1080},
    Pair{1280, 960},  Pair{1280, 720},  Pair{960, 720},   Pair{960, 640},   Pair{854, 480},
    Pair{768, 576},   Pair{720, 480},   Pair{640, 480},   Pair{480, 360},   Pair{320, 270},
    Pair{320, 240},   Pair{240, 180},   Pair{240, 140},   Pair{180, 140},   Pair{120, 90},
};

// The same for frame rates, as numerator and denominator. 50000/1001 and 25000/1001 are no broadcast rates
// and are deliberately there.
constexpr std::array kFramerates{
    Pair{60, 1},       Pair{60000, 1001}, Pair{50, 1},       Pair{50000, 1001}, Pair{30, 1},
    Pair{30000, 1001}, Pair{25, 1},       Pair{25000, 1001}, Pair{24, 1},       Pair{24000, 1001},
    Pair{20, 1},       Pair{15, 1},       Pair{8, 1},
};

bool IsWithin(int value, int lowest, int highest) { return value >= lowest && value <= highest; }

HandleList<IVXResolutionPreset> ResolutionsWithinLimits(const IVXCodecs& codecs)
{
    const Pair widths{codecs.MinWidth({}), codecs.MaxWidth({})};
    const Pair heights{codecs.MinHeight({}), codecs.MaxHeight({})};
    HandleList<IVXResolutionPreset> list;
    for (const auto& [width, height] : kResolutions)
        if (IsWithin(width, widths.first, widths.second) && IsWithin(height, heights.first, heights.second))
            list.push_back(IVXResolutionPreset::MallocResolutionPreset(width, height));
    return list;
}

HandleList<IVXFrameratePreset> FrameratesWithinLimits(const IVXCodecs& codecs)
{
    const double lowest = codecs.MinFrameRate({})->GetDoubleValue();
    const double highest = codecs.MaxFrameRate({})->GetDoubleValue();
    HandleList<IVXFrameratePreset> list;
    for (const auto& [num, den] : kFramerates)
    {
        auto rate = IVXRational::MallocRational(num, den);
        const double value = rate->GetDoubleValue();
        if (!(value < lowest) && !(value > highest))
            list.push_back(IVXFrameratePreset::MallocFrameratePreset(std::move(rate)));
    }
    return list;
}

// A choice between at least two values can be left open.
template <typename Preset>
HandleList<Preset> BehindAuto(HandleList<Preset> list, std::shared_ptr<Preset> autoPreset)
{
    if (list.size() >= 2)
        list.insert(list.begin(), std::move(autoPreset));
    return list;
}

} // namespace

VXValueList<IVXCodecQualityPreset> DefaultQualities()
{
    using Quality = IVXCodecQualityPreset;
    static const auto s_qualities = CloneValues<Quality>(HandleList<Quality>{
        Quality::MallocCodecQualityPreset(),
        Quality::MallocCodecQualityPreset(IVXCodecs::QualityLevelLow),
        Quality::MallocCodecQualityPreset(IVXCodecs::QualityLevelNormal),
        Quality::MallocCodecQualityPreset(IVXCodecs::QualityLevelHigh),
        Quality::MallocCodecQualityPreset(IVXCodecs::QualityLevelBest),
        Quality::MallocCodecQualityPreset(1),
    });
    return CloneValues(s_qualities);
}

HandleList<IVXResolutionPreset> IVXCodecPreset::DefaultResolutions(int codecID)
{
    const auto codecs = IVXCodecs::MallocCodecs(codecID, true);
    if (!codecs)
        return {};
    HandleList<IVXResolutionPreset> list;
    for (const auto& [width, height] : codecs->SupportedResolutions({}))
        list.push_back(IVXResolutionPreset::MallocResolutionPreset(width, height));
    if (list.empty())
        list = ResolutionsWithinLimits(*codecs);
    return BehindAuto(std::move(list), IVXResolutionPreset::MallocResolutionPreset());
}

HandleList<IVXFrameratePreset> IVXCodecPreset::DefaultFramerates(int codecID)
{
    const auto codecs = IVXCodecs::MallocCodecs(codecID, true);
    if (!codecs)
        return {};
    HandleList<IVXFrameratePreset> list;
    for (const auto& rate : codecs->SupportedFrameRates({}))
        list.push_back(IVXFrameratePreset::MallocFrameratePreset(rate));
    if (list.empty())
        list = FrameratesWithinLimits(*codecs);
    return BehindAuto(std::move(list), IVXFrameratePreset::MallocFrameratePreset());
}

HandleList<IVXSampleratePreset> IVXCodecPreset::DefaultSamplerates(int codecID)
{
    const auto codecs = IVXCodecs::MallocCodecs(codecID, true);
    if (!codecs)
        return {};
    HandleList<IVXSampleratePreset> list;
    for (const int samplerate : codecs->SupportedSampleRates({}))
        list.push_back(IVXSampleratePreset::MallocSampleratePreset(samplerate));
    return BehindAuto(std::move(list), IVXSampleratePreset::MallocSampleratePreset());
}

HandleList<IVXChannelLayoutPreset> IVXCodecPreset::DefaultChannelLayouts(int codecID)
{
    const auto codecs = IVXCodecs::MallocCodecs(codecID, true);
    if (!codecs)
        return {};
    HandleList<IVXChannelLayoutPreset> list;
    for (const std::uint64_t layout : codecs->SupportedChannelLayouts({}))
        list.push_back(IVXChannelLayoutPreset::MallocChannelLayoutPreset(layout));
    return BehindAuto(std::move(list), IVXChannelLayoutPreset::MallocChannelLayoutPreset());
}

HandleList<IVXSampleFmtPreset> IVXCodecPreset::DefaultSampleFmt(int codecID)
{
    return DefaultSampleFormats(codecID).Handles();
}

VXValueList<IVXSampleFmtPreset> DefaultSampleFormats(int codecID)
{
    const auto codecs = IVXCodecs::MallocCodecs(codecID, true);
    if (!codecs)
        return {};
    return SampleFmtValues(codecs->SupportedFormats({}), codecs->GetCodecType() == VXCodecTypeAudio);
}

HandleList<IVXProfilePreset> IVXCodecPreset::DefaultProfiles(int codecID)
{
    const auto codecs = IVXCodecs::MallocCodecs(codecID, true);
    if (!codecs)
        return {};
    HandleList<IVXProfilePreset> list{
        IVXProfilePreset::MallocProfilePreset(IVXCodecs::VXProfileUnknown, "Unknown")};
    for (const int profile : codecs->SupportedProfiles({}))
        list.push_back(IVXProfilePreset::MallocProfilePreset(profile, codecs->ProfileName(profile)));
    return list;
}

HandleList<IVXLevelPreset> IVXCodecPreset::DefaultLevels(int codecID)
{
    const auto codecs = IVXCodecs::MallocCodecs(codecID, true);
    if (!codecs)
        return {};
    HandleList<IVXLevelPreset> list{IVXLevelPreset::MallocLevelPreset(IVXCodecs::VXLevelUnknown, "Unknown")};
    for (const int level : codecs->SupportedLevels({}))
        list.push_back(IVXLevelPreset::MallocLevelPreset(level, codecs->LevelName(level)));
    return list;
}

} // namespace Vexlor
