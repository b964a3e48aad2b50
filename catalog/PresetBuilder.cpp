#include "catalog/PresetBuilder.h"

#include "IVXChannelLayoutPreset.h"
#include "IVXCodecPreset.h"
#include "IVXCodecs.h"
#include "IVXFormatPreset.h"
#include "IVXFrameratePreset.h"
#include "IVXLevelPreset.h"
#include "IVXProfilePreset.h"
#include "IVXRational.h"
#include "IVXResolutionPreset.h"
#include "IVXSampleFmtPreset.h"
#include "IVXSampleratePreset.h"

#include <bit>
#include <string>
#include <utility>
#include <vector>

namespace Vexlor::Catalog
{

namespace
{

/// Position of the first element that fits; the number of elements when none does.
template <typename Elements, typename Fits>
int PositionWhere(const Elements& elements, Fits fits)
{
    int position = 0;
    for (const auto& element : elements)
    {
        if (fits(*element))
            break;
        ++position;
    }
    return position;
}

/// Removes, by the operation that takes a position, the elements that do not fit.
template <typename Elements, typename Fits, typename Remove>
void KeepWhere(const Elements& elements, Fits fits, Remove remove)
{
    for (auto position = static_cast<int>(elements.size()) - 1; position >= 0; --position)
        if (!fits(*elements[static_cast<std::size_t>(position)]))
            remove(position);
}

bool IsWithin(const IVXResolutionPreset& preset, const Size& most)
{
    return preset.IsAutoValue() || (preset.Width() <= most.width && preset.Height() <= most.height);
}

void BoundSizes(IVXCodecPreset& codec, const Size& most)
{
    if (most.width > 0)
        KeepWhere(
            codec.ResolutionPresets(), [&](const auto& preset) { return IsWithin(preset, most); },
            [&](int position) { codec.RemoveResolutionPreset(position); });
}

// A size that is not on offer goes before the first smaller one, as the lists are sorted.
void ChooseSize(IVXCodecPreset& codec, const Size& size)
{
    if (size.width == 0)
        return;
    const auto isSame = [&](const auto& preset)
    { return preset.Width() == size.width && preset.Height() == size.height; };
    const auto isSmaller = [&](const auto& preset)
    { return !preset.IsAutoValue() && preset.Width() * preset.Height() < size.width * size.height; };
    auto position = PositionWhere(codec.ResolutionPresets(), isSame);
    if (position == codec.ResolutionPresetCount())
    {
        position = PositionWhere(codec.ResolutionPresets(), isSmaller);
        codec.InsertResolutionPresets({IVXResolutionPreset::MallocResolutionPreset(size.width, size.height)},
                                      position);
    }
    codec.SetIndexForResolutionPreset(position);
}

void ChooseFrameRate(IVXCodecPreset& codec, int num, int den)
{
    if (num == 0)
        return;
    const auto rate = IVXRational::MallocRational(num, den);
    const double value = rate->GetDoubleValue();
    const auto isOther = [&](double other) { return other < value || other > value; };
    KeepWhere(
        codec.FrameratePresets(),
        [&](const auto& preset)
        { return preset.IsAutoValue() || !(preset.Framerate()->GetDoubleValue() > value); },
        [&](int position) { codec.RemoveFrameratePreset(position); });
    const auto position =
        PositionWhere(codec.FrameratePresets(), [](const auto& preset) { return !preset.IsAutoValue(); });
    if (position == codec.FrameratePresetCount() ||
        isOther(codec.FrameratePresetAt(position)->Framerate()->GetDoubleValue()))
        codec.InsertFrameratePresets({IVXFrameratePreset::MallocFrameratePreset(rate)}, position);
    codec.SetIndexForFrameratePresets(position);
}

void ChooseProfile(IVXCodecPreset& codec, std::string_view name)
{
    codec.SetIndexForProfilesPresets(
        PositionWhere(codec.ProfilePresets(), [&](const auto& preset) { return preset.Name() == name; }));
}

// What players of a level take, they take of the lower ones too.
void ChooseLevel(IVXCodecPreset& codec, std::string_view name)
{
    const auto position =
        PositionWhere(codec.LevelPresets(), [&](const auto& preset) { return preset.Name() == name; });
    if (position == codec.LevelPresetCount())
        return;
    while (codec.LevelPresetCount() > position + 1)
        codec.RemoveLevelPreset(codec.LevelPresetCount() - 1);
    codec.SetIndexForLevelPresets(position);
}

void ChooseFormat(IVXCodecPreset& codec, std::string_view name)
{
    const auto position = PositionWhere(codec.SampleFmtPresets(),
                                        [&](const auto& preset) { return preset.FormatSampleFmt() == name; });
    if (position < static_cast<int>(codec.SampleFmtPresets().size()))
        codec.SetIndexForSampleFmts(position);
}

void ChooseSampleRate(IVXCodecPreset& codec, int rate)
{
    codec.SetIndexForSampleratePresets(PositionWhere(codec.SampleratePresets(), [&](const auto& preset)
                                                     { return preset.Samplerate() == rate; }));
}

void ChooseLayout(IVXCodecPreset& codec, std::uint64_t layout)
{
    if (layout == 0)
        return;
    KeepWhere(
        codec.ChannelLayoutPresets(),
        [&](const auto& preset) { return std::popcount(preset.Layout()) <= std::popcount(layout); },
        [&](int position) { codec.RemoveChannelLayoutPreset(position); });
    codec.SetIndexForChannelLayoutPresets(PositionWhere(codec.ChannelLayoutPresets(), [&](const auto& preset)
                                                        { return preset.Layout() == layout; }));
}

void Apply(const Picture& picture, IVXCodecPreset& codec)
{
    BoundSizes(codec, picture.most);
    ChooseSize(codec, picture.size);
    ChooseFrameRate(codec, picture.rateNum, picture.rateDen);
    ChooseProfile(codec, picture.profile);
    ChooseLevel(codec, picture.level);
    ChooseFormat(codec, picture.format);
    codec.AspectPreset()->SetAspectType(picture.aspect);
    if (picture.aspect == IVXSampleAspectPreset::AspectCustom)
        codec.AspectPreset()->SetRatio(picture.samples.width, picture.samples.height);
}

void Apply(const Sound& sound, IVXCodecPreset& codec)
{
    ChooseSampleRate(codec, sound.rate);
    ChooseLayout(codec, sound.layout);
    ChooseFormat(codec, sound.format);
}

/// The two lists of codec presets under one set of names.
struct VideoSide
{
    static auto All(IVXFormatPreset& preset) { return preset.VideoCodecPresets(); }
    static auto Current(IVXFormatPreset& preset) { return preset.CurrentVideoCodec(); }
    static void Add(IVXFormatPreset& preset, int codecID) { preset.AddVideoCodecPreset(codecID); }
    static void Remove(IVXFormatPreset& preset, int position) { preset.RemoveVideoCodecPreset(position); }
    static void Choose(IVXFormatPreset& preset, int position)
    {
        preset.SetIndexForVideoCodecPresets(position);
    }
};

struct AudioSide
{
    static auto All(IVXFormatPreset& preset) { return preset.AudioCodecPresets(); }
    static auto Current(IVXFormatPreset& preset) { return preset.CurrentAudioCodec(); }
    static void Add(IVXFormatPreset& preset, int codecID) { preset.AddAudioCodecPreset(codecID); }
    static void Remove(IVXFormatPreset& preset, int position) { preset.RemoveAudioCodecPreset(position); }
    static void Choose(IVXFormatPreset& preset, int position)
    {
        preset.SetIndexForAudioCodecPresets(position);
    }
};

/// Makes the codec the current one, and with that offer the only one; without a codec the list is emptied.
template <typename Side>
std::shared_ptr<IVXCodecPreset> ChooseCodec(IVXFormatPreset& preset, int codecID, Offer offer)
{
    const auto isMeant = [codecID](const auto& codec)
    { return codec.CodecID() == codecID && !codec.IsAutoValue(); };
    if (offer == Offer::Chosen || codecID == VXCodecID_None)
        KeepWhere(Side::All(preset), isMeant, [&](int position) { Side::Remove(preset, position); });
    const auto codecs = Side::All(preset);
    const auto position = PositionWhere(codecs, isMeant);
    if (codecID != VXCodecID_None && position == static_cast<int>(codecs.size()))
        Side::Add(preset, codecID);
    Side::Choose(preset, position);
    return Side::Current(preset);
}

void ChooseVideo(IVXFormatPreset& preset, const Picture& picture, Offer offer)
{
    if (const auto codec = ChooseCodec<VideoSide>(preset, picture.codec, offer))
        Apply(picture, *codec);
}

void ChooseAudio(IVXFormatPreset& preset, const Sound& sound, Offer offer)
{
    if (const auto codec = ChooseCodec<AudioSide>(preset, sound.codec, offer))
        Apply(sound, *codec);
}

int BitrateOf(int kilobits)
{
    constexpr int kNotGiven = -1;
    return kilobits == 0 ? kNotGiven : kilobits * 1'000;
}

// Equal bounds contradict each other, so the lower one gives way by a bit a second.
int LeastOf(const Kilobits& kilobits)
{
    return BitrateOf(kilobits.least) - (kilobits.least != 0 && kilobits.least == kilobits.most ? 1 : 0);
}

void SetBounds(IVXFormatPreset& preset, const Preset& row)
{
    preset.SetMaxWidth(row.picture.most.width);
    preset.SetMaxHeight(row.picture.most.height);
    preset.SetMaxVideoBitrate(BitrateOf(row.picture.kilobits.most));
    preset.SetMinVideoBitrate(LeastOf(row.picture.kilobits));
    preset.SetMaxAudioBitrate(BitrateOf(row.sound.kilobits.most));
    preset.SetMinAudioBitrate(LeastOf(row.sound.kilobits));
}

// Reading a document puts "Unknown" into every list of levels; what is built here is what would be read.
void CompleteLevels(IVXCodecPreset& codec)
{
    if (codec.LevelPresetCount() == 0)
        codec.InsertLevelPresets({IVXLevelPreset::MallocLevelPreset(IVXCodecs::VXLevelUnknown, "Unknown")},
                                 0);
}

} // namespace

std::shared_ptr<IVXFormatPreset> PresetBuilder::Fresh(std::string_view container)
{
    auto& made = m_containers[container];
    if (!made)
    {
        made = IVXFormatPreset::MallocFormatPreset(std::string(container), {});
        if (!made)
            return {};
        for (const auto& codec : made->VideoCodecPresets())
            CompleteLevels(*codec);
        for (const auto& codec : made->AudioCodecPresets())
            CompleteLevels(*codec);
    }
    return made->Clone();
}

std::shared_ptr<IVXFormatPreset> PresetBuilder::Build(const Preset& row, Offer offer)
{
    auto preset = Fresh(row.container.name);
    if (!preset)
        return {};
    preset->SetName(std::string(row.name));
    preset->SetDescription(std::string(row.when));
    preset->SetFaceID(row.container.faceID);
    ChooseVideo(*preset, row.picture, offer);
    ChooseAudio(*preset, row.sound, offer);
    SetBounds(*preset, row);
    return preset;
}

} // namespace Vexlor::Catalog
