#include "CodecsMarkdown.h"

#include "apps/host/Text.h"
#include "apps/host/Units.h"

#include "IVXCodecs.h"
#include "IVXFormat.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/VXLevels.h"

#include <algorithm>
#include <array>
#include <functional>

namespace Vexlor::Tool
{

namespace
{

using Grade = IVXCodecs::QualityLevel;
using Texts = std::vector<std::string>;

constexpr auto* kHead = R"(# Codecs and containers

What the codec library offers: the containers with the codecs that each takes, the preferred one first, and for every
codec the values that it accepts, the bitrates that suit it by grade, and the lowest level that holds the picture at
those bitrates: one for all four grades, or those of Low and Best.

Grades are to look and sound alike in every codec. Between bounds that a preset gives, a codec's grades are thirds of
the way from one to the other; a bound that is not given is the codec's own. That of a sound codec is its Low or Best at
the sample rate and layout that it offers first, which is stereo at 48 kHz as a rule, whatever the sound at hand: bounds
are asked for before there is any. A sound codec without grades has its smallest and its largest sound.

`vxpresets codecs --markdown` prints this page for the FFmpeg that it runs on. The one in the repository comes from
`scripts/update-docs` on Debian 12, whose FFmpeg is 5.1; another FFmpeg brings other encoders and muxers, and with them
other values.
)";

constexpr std::array kGrades{Grade{0}, Grade{1}, Grade{2}, Grade{3}};

/// What a codec is asked for; it answers with the nearest that it accepts.
struct Picture
{
    int width;
    int height;
    int frameRate;
};
constexpr std::array kPictures{Picture{640, 360, 30},   Picture{854, 480, 30},   Picture{1280, 720, 30},
                               Picture{1920, 1080, 30}, Picture{1920, 1080, 60}, Picture{3840, 2160, 30},
                               Picture{3840, 2160, 60}};
constexpr std::array kLayouts{"Mono", "Stereo", "5.1"};
constexpr int kSampleRate = 48000;

/// A codec's bitrate by grade, for one picture or sound, and the lowest levels that hold the picture at it.
struct BitrateRow
{
    std::string name;
    std::function<int(Grade)> bitrate;
    std::string levels = {};
};

std::string Row(const Texts& cells) { return "| " + Joined(cells, " | ") + " |\n"; }

void AppendOnce(std::vector<BitrateRow>& rows, BitrateRow row)
{
    if (std::ranges::find(rows, row.name, &BitrateRow::name) == rows.end())
        rows.push_back(std::move(row));
}

std::string LevelText(const Codec& codec, const VXLevelStream& stream)
{
    for (const int level : codec.model->SupportedLevels({}))
        if (LevelHolds(level, stream))
            return codec.model->LevelName(level);
    return "none";
}

std::string LevelTexts(const Codec& codec, VXLevelStream stream, const std::function<int(Grade)>& bitrate)
{
    stream.bitrate = bitrate(kGrades.front());
    const auto lowest = LevelText(codec, stream);
    stream.bitrate = bitrate(kGrades.back());
    const auto highest = LevelText(codec, stream);
    return lowest == highest ? lowest : lowest + " to " + highest;
}

BitrateRow PictureRow(const Codec& codec, const Picture& wanted)
{
    const auto& model = *codec.model;
    const auto [width, height] = model.BestResolutionFor(wanted.width, wanted.height, {});
    const auto rate = model.BestFrameRateForInput(IVXRational::MallocRational(wanted.frameRate, 1), {});
    const int format = model.SupportedFormats({}).front();
    const auto bitrate = [&model, width = width, height = height, rate, format](Grade grade)
    { return model.BestBitrateFor(width, height, rate, format, grade, {}); };
    const VXLevelStream stream{.codecID = codec.id, .width = width, .height = height, .frameRate = rate};
    return {SizeText(width, height) + ", " + FrameRateText(*rate), bitrate,
            LevelTexts(codec, stream, bitrate)};
}

BitrateRow SoundRow(const IVXCodecs& model, std::uint64_t layout)
{
    const int sampleRate = model.BestSampleRateForInput(kSampleRate, {});
    const int format = model.SupportedFormats({}).front();
    return {VXMediaCodecFormatSamplerate(sampleRate) + ", " + LayoutText(layout),
            [&model, sampleRate, layout, format](Grade grade)
            { return model.BestBitrateFor(sampleRate, layout, format, grade, {}); }};
}

std::vector<BitrateRow> BitrateRows(const Codec& codec)
{
    std::vector<BitrateRow> rows;
    if (codec.IsVideo())
        for (const auto& picture : kPictures)
            AppendOnce(rows, PictureRow(codec, picture));
    else
        for (const auto layout : codec.model->SupportedChannelLayouts({}))
            if (std::ranges::find(kLayouts, LayoutText(layout)) != kLayouts.end())
                AppendOnce(rows, SoundRow(*codec.model, layout));
    return rows;
}

std::string BitrateTable(const Codec& codec)
{
    const bool hasLevels = !codec.model->SupportedLevels({}).empty();
    auto heading = TextsOf(kGrades, IVXCodecs::QualityLevelName);
    heading.insert(heading.begin(), "Bitrate");
    if (hasLevels)
        heading.emplace_back("Level");
    auto text = Row(heading) + (hasLevels ? "|---|--:|--:|--:|--:|---|\n" : "|---|--:|--:|--:|--:|\n");
    for (const auto& row : BitrateRows(codec))
    {
        auto cells = TextsOf(kGrades, [&row](Grade grade) { return BitrateText(row.bitrate(grade)); });
        cells.insert(cells.begin(), row.name);
        if (hasLevels)
            cells.push_back(row.levels);
        text += Row(cells);
    }
    return text;
}

struct Container
{
    std::string name;
    std::vector<int> videoCodecs;
    std::vector<int> audioCodecs;

    bool Takes(int codecID) const
    {
        return std::ranges::find(videoCodecs, codecID) != videoCodecs.end() ||
               std::ranges::find(audioCodecs, codecID) != audioCodecs.end();
    }
};

std::vector<Container> AllContainers()
{
    std::vector<Container> containers;
    for (const auto& name : VXMediaCodecSupportOutputAllMediaFormats())
    {
        const auto format = IVXFormat::MallocFormat(name, {});
        containers.push_back({name, format->VideoCodecIDs(), format->AudioCodecIDs()});
    }
    return containers;
}

std::string ContainerTable(const std::vector<Container>& containers)
{
    auto text = Row({"Container", "Video codecs", "Audio codecs"}) + "|---|---|---|\n";
    for (const auto& container : containers)
        text += Row({container.name, Joined(CodecNames(container.videoCodecs), ", "),
                     Joined(CodecNames(container.audioCodecs), ", ")});
    return text;
}

Texts Takers(const std::vector<Container>& containers, int codecID)
{
    Texts names;
    for (const auto& container : containers)
        if (container.Takes(codecID))
            names.push_back(container.name);
    return names;
}

std::string Bullet(const NamedList& list)
{
    return "- " + list.name + ": " + (list.entries.empty() ? "none" : Joined(list.entries, ", ")) + '\n';
}

std::string Section(const Codec& codec, const std::vector<Container>& containers)
{
    auto text = "\n### " + codec.model->GetCodecName() + "\n\n";
    text += Bullet({"Encoders", codec.model->Names()});
    text += Bullet({"Containers", Takers(containers, codec.id)});
    for (const auto& list : Accepts(codec))
        text += Bullet(list);
    return text + '\n' + BitrateTable(codec);
}

} // namespace

std::string CodecsMarkdown(const std::vector<Codec>& codecs)
{
    const auto containers = AllContainers();
    auto text = kHead + std::string("\n## Containers\n\n") + ContainerTable(containers);
    for (const bool isVideo : {true, false})
    {
        text += isVideo ? "\n## Video codecs\n" : "\n## Audio codecs\n";
        for (const auto& codec : codecs)
            if (codec.IsVideo() == isVideo)
                text += Section(codec, containers);
    }
    return text;
}

} // namespace Vexlor::Tool
