#include "RemedyEdits.h"

#include "Outcome.h"

#include "apps/studio/texts/ToolText.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXFrameratePreset.h"
#include "IVXLevelPreset.h"
#include "IVXRational.h"
#include "IVXResolutionPreset.h"

#include <algorithm>
#include <cstdint>

namespace Vexlor::Studio
{

namespace
{

/// Where the entry of a list stands that is asked for; at the list's end, where it is to be added, else.
template <typename Entries, typename IsIt>
int PositionIn(const Entries& entries, IsIt isIt)
{
    return static_cast<int>(std::ranges::find_if(entries, isIt) - entries.begin());
}

void ChooseLevel(IVXCodecPreset& codec, int level)
{
    const int position =
        PositionIn(codec.LevelPresets(), [level](const auto& entry) { return entry->Level() == level; });
    if (position == codec.LevelPresetCount())
        codec.AddLevelPreset(level);
    codec.SetIndexForLevelPresets(position);
}

void ChooseFrameRate(IVXCodecPreset& codec, const IVXRational& rate)
{
    const auto isIt = [&rate](const auto& entry)
    {
        const auto other = entry->Framerate();
        return other && std::int64_t{other->Num()} * rate.Den() == std::int64_t{rate.Num()} * other->Den() &&
               !entry->IsAutoValue();
    };
    const int position = PositionIn(codec.FrameratePresets(), isIt);
    if (position == codec.FrameratePresetCount())
        codec.AddFrameratePreset(rate.Num(), rate.Den());
    codec.SetIndexForFrameratePresets(position);
}

void ChooseSize(IVXCodecPreset& codec, int width, int height)
{
    const auto isIt = [width, height](const auto& entry)
    { return entry->Width() == width && entry->Height() == height; };
    const int position = PositionIn(codec.ResolutionPresets(), isIt);
    if (position == codec.ResolutionPresetCount())
        codec.AddResolutionPreset(width, height);
    codec.SetIndexForResolutionPreset(position);
}

/// Documents hold bounds of bitrates, and no bitrates.
void BoundBitrate(IVXFormatPreset& preset, std::int64_t bitrate)
{
    const int bound = static_cast<int>(bitrate);
    preset.SetMaxVideoBitrate(bound);
    preset.SetMinVideoBitrate(std::min(preset.MinVideoBitrate(), bound));
}

/// The codec preset that the stream was matched by: the current one, or the first of that codec.
std::shared_ptr<IVXCodecPreset> CodecPresetOf(IVXFormatPreset& preset, int codecID)
{
    const auto isIt = [codecID](const auto& codec) { return codec && codec->CodecID() == codecID; };
    if (auto current = preset.CurrentVideoCodec(); isIt(current))
        return current;
    const auto codecs = preset.VideoCodecPresets();
    const auto found = std::ranges::find_if(codecs, isIt);
    return found == codecs.end() ? nullptr : *found;
}

void Apply(const VXLevelRemedy& remedy, std::int64_t bitrate, IVXFormatPreset& preset)
{
    const auto codec = CodecPresetOf(preset, remedy.stream.codecID);
    if (!codec)
        return;
    if (remedy.kind == VXLevelRemedyKind::RaiseLevel)
        ChooseLevel(*codec, remedy.level);
    else if (remedy.kind == VXLevelRemedyKind::LowerFrameRate)
        ChooseFrameRate(*codec, *remedy.stream.frameRate);
    else if (remedy.kind == VXLevelRemedyKind::LowerSize)
        ChooseSize(*codec, remedy.stream.width, remedy.stream.height);
    if (remedy.stream.bitrate < bitrate)
        BoundBitrate(preset, remedy.stream.bitrate);
}

bool IsLevelTooLow(const Tool::MatchWarning& warning)
{
    return warning.kind == Tool::MatchWarningKind::LevelTooLow;
}

/// Whether that is so with the same source.
bool Helps(const RemedyEdit& edit, const Outcome& outcome, const IVXFormatPreset& preset)
{
    const auto changed = preset.Clone();
    edit.change(*changed);
    const auto warnings = Tool::WarningsOf(Tool::MatchMedia(outcome.match.media, *changed));
    return std::ranges::none_of(warnings, IsLevelTooLow);
}

} // namespace

std::vector<RemedyEdit> RemedyEditsOf(const Outcome& outcome, const IVXFormatPreset& preset)
{
    std::vector<RemedyEdit> edits;
    const auto video = outcome.match.output->GetVideoCodecParameter();
    const auto warning = std::ranges::find_if(outcome.warnings, IsLevelTooLow);
    if (!video || warning == outcome.warnings.end())
        return edits;
    const std::int64_t bitrate = std::max(video->GetBitrate(), video->GetMaxBitrate());
    for (const auto& remedy : warning->remedies)
    {
        const auto change = [remedy = remedy.remedy, bitrate](IVXFormatPreset& changed)
        { Apply(remedy, bitrate, changed); };
        if (RemedyEdit edit{ToolText(remedy.text), change}; Helps(edit, outcome, preset))
            edits.push_back(std::move(edit));
    }
    return edits;
}

} // namespace Vexlor::Studio
