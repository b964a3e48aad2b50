#include "tests/encode/CodecChoices.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/ChannelLayouts.h"

#include <algorithm>
#include <span>

namespace Vexlor
{

namespace
{

/// One of a preset's lists.
struct Choice
{
    int (*count)(const IVXCodecPreset& preset);
    void (*choose)(IVXCodecPreset& preset, int entry);
};

int CountQualities(const IVXCodecPreset& preset)
{
    return static_cast<int>(std::ranges::count_if(preset.CodecQualityPresets(),
                                                  [](const auto& quality) { return !quality->IsCustom(); }));
}

constexpr Choice kFormat{[](const IVXCodecPreset& preset)
                         { return static_cast<int>(preset.SampleFmtPresets().size()); },
                         [](IVXCodecPreset& preset, int entry) { preset.SetIndexForSampleFmts(entry); }};
constexpr Choice kProfile{[](const IVXCodecPreset& preset) { return preset.ProfilePresetCount(); },
                          [](IVXCodecPreset& preset, int entry)
                          { preset.SetIndexForProfilesPresets(entry); }};
constexpr Choice kQuality{CountQualities,
                          [](IVXCodecPreset& preset, int entry) { preset.SetIndexForQualityPresets(entry); }};

constexpr Choice kVideoChoices[] = {
    {[](const IVXCodecPreset& preset) { return preset.ResolutionPresetCount(); },
     [](IVXCodecPreset& preset, int entry) { preset.SetIndexForResolutionPreset(entry); }},
    {[](const IVXCodecPreset& preset) { return preset.FrameratePresetCount(); },
     [](IVXCodecPreset& preset, int entry) { preset.SetIndexForFrameratePresets(entry); }},
    kFormat,
    kProfile,
    {[](const IVXCodecPreset& preset) { return preset.LevelPresetCount(); },
     [](IVXCodecPreset& preset, int entry) { preset.SetIndexForLevelPresets(entry); }},
    kQuality,
};

constexpr Choice kAudioChoices[] = {
    {[](const IVXCodecPreset& preset) { return preset.SampleratePresetCount(); },
     [](IVXCodecPreset& preset, int entry) { preset.SetIndexForSampleratePresets(entry); }},
    {[](const IVXCodecPreset& preset) { return preset.ChannelLayoutPresetCount(); },
     [](IVXCodecPreset& preset, int entry) { preset.SetIndexForChannelLayoutPresets(entry); }},
    kFormat,
    kProfile,
    kQuality,
};

std::span<const Choice> ChoicesOf(const IVXCodecPreset& preset)
{
    const auto codecs = IVXCodecs::MallocCodecs(preset.CodecID(), true);
    return codecs->GetCodecType() == VXCodecTypeVideo ? std::span<const Choice>(kVideoChoices)
                                                      : std::span<const Choice>(kAudioChoices);
}

std::shared_ptr<IVXCodecParameter> AutoPicture()
{
    auto picture = IVXCodecParameter::MallocCodecParamter(VXCodecID_None);
    picture->SetWidth(719);
    picture->SetHeight(405);
    picture->SetFramePerSecond(IVXRational::MallocRational(24000, 1001));
    return picture;
}

std::shared_ptr<IVXCodecParameter> AutoSound()
{
    auto sound = IVXCodecParameter::MallocCodecParamter(VXCodecID_None);
    sound->SetSampleRate(44100);
    sound->SetChannelLayout(kLayout51);
    return sound;
}

} // namespace

std::vector<int> ChoiceCounts(const IVXCodecPreset& preset)
{
    std::vector<int> counts;
    for (const auto& choice : ChoicesOf(preset))
        counts.push_back(std::max(1, choice.count(preset)));
    return counts;
}

void Choose(IVXCodecPreset& preset, const std::vector<int>& entries)
{
    auto entry = entries.begin();
    for (const auto& choice : ChoicesOf(preset))
        choice.choose(preset, *entry++);
}

std::shared_ptr<const IVXFormatParameter> AutoSource()
{
    const auto source = IVXFormatParameter::MallocFormatParameter("", "");
    source->SetVideoCodecParameter(AutoPicture());
    source->SetAudioCodecParameter(AutoSound());
    return source;
}

} // namespace Vexlor
