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

// Behind the grades: a user's own bitrate, variable and constant, and one between bounds; all of them odd.
enum BitrateChoice : int
{
    OfTheGrade,
    Variable,
    Constant,
    Bounded,
    BitrateChoiceCount,
};

bool IsVideo(const IVXCodecPreset& preset)
{
    return IVXCodecs::MallocCodecs(preset.CodecID(), true)->GetCodecType() == VXCodecTypeVideo;
}

void ChooseBitrate(IVXCodecPreset& preset, int entry)
{
    const auto qualities = preset.CodecQualityPresets();
    const auto custom =
        std::ranges::find_if(qualities, [](const auto& quality) { return quality->IsCustom(); });
    if ((entry != Variable && entry != Constant) || custom == qualities.end())
        return;
    (*custom)->SetBitrate(IsVideo(preset) ? 1'234'567 : 123'457);
    (*custom)->SetMode(entry == Constant ? 1 : 0);
    preset.SetIndexForQualityPresets(static_cast<int>(custom - qualities.begin()));
}

constexpr Choice kBitrate{[](const IVXCodecPreset& /*preset*/) { return int{BitrateChoiceCount}; },
                          ChooseBitrate};

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
    kBitrate,
};

constexpr Choice kAudioChoices[] = {
    {[](const IVXCodecPreset& preset) { return preset.SampleratePresetCount(); },
     [](IVXCodecPreset& preset, int entry) { preset.SetIndexForSampleratePresets(entry); }},
    {[](const IVXCodecPreset& preset) { return preset.ChannelLayoutPresetCount(); },
     [](IVXCodecPreset& preset, int entry) { preset.SetIndexForChannelLayoutPresets(entry); }},
    kFormat,
    kProfile,
    kQuality,
    kBitrate,
};

std::span<const Choice> ChoicesOf(const IVXCodecPreset& preset)
{
    return IsVideo(preset) ? std::span<const Choice>(kVideoChoices) : std::span<const Choice>(kAudioChoices);
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

std::vector<std::vector<int>> LabelCases(const IVXCodecPreset& preset)
{
    constexpr int kAuto = 0;
    constexpr int kLow = 1;
    std::vector<std::vector<int>> cases;
    if (!IsVideo(preset))
        return cases;
    const auto counts = ChoiceCounts(preset);
    for (int profile = 0; profile < counts[3]; ++profile)
        for (int level = 0; level < counts[4]; ++level)
            cases.push_back({counts[0] - 1, counts[1] - 1, kAuto, profile, level, kLow, OfTheGrade});
    return cases;
}

void Choose(IVXCodecPreset& preset, const std::vector<int>& entries)
{
    auto entry = entries.begin();
    for (const auto& choice : ChoicesOf(preset))
        choice.choose(preset, *entry++);
}

BitrateBounds BoundsOf(const IVXCodecPreset& preset, const std::vector<int>& entries)
{
    if (entries.back() != Bounded)
        return {};
    return IsVideo(preset) ? BitrateBounds{2'100'003, 700'001} : BitrateBounds{170'003, 70'001};
}

bool HasOfferedBitrate(const std::vector<int>& entries) { return entries.back() == OfTheGrade; }

std::shared_ptr<const IVXFormatParameter> AutoSource()
{
    const auto source = IVXFormatParameter::MallocFormatParameter("", "");
    source->SetVideoCodecParameter(AutoPicture());
    source->SetAudioCodecParameter(AutoSound());
    return source;
}

} // namespace Vexlor
