#include "apps/host/match/MatchReasons.h"

#include "apps/host/Catalogue.h"
#include "runtime/foundation/VXLogSink.h"
#include "tests/apps/Sources.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFormatPreset.h"
#include "IVXSampleAspectPreset.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace Vexlor::Tool
{

namespace
{

using Apps::AudioSource;
using Apps::FileOf;
using Apps::VideoSource;

/// Counts the lines of the log, which nobody sees meanwhile.
class QuietLog
{
public:
    QuietLog() : m_before(SetLogSink([this](auto, auto) { ++m_lines; })) {}
    ~QuietLog() { SetLogSink(m_before); }
    QuietLog(const QuietLog&) = delete;
    QuietLog& operator=(const QuietLog&) = delete;

    int Lines() const { return m_lines; }

private:
    int m_lines = 0;
    VXLogSink m_before;
};

using Stream = std::shared_ptr<const IVXCodecParameter>;

/// The values in which two streams differ: "Size: 2 x 2, not 4 x 4".
std::string Differences(const Stream& matched, const Stream& reasoned, std::span<const MatchRow> rows)
{
    if (!matched || !reasoned)
        return matched == reasoned ? "" : "one of the streams is missing";
    std::string text;
    if (matched->GetCodecID() != reasoned->GetCodecID())
        text += "codec; ";
    for (const auto& row : rows)
        if (row.numbers(*matched) != row.numbers(*reasoned))
            text += std::string(row.name) + ": " + row.text(*reasoned) + ", not " + row.text(*matched) + "; ";
    return text;
}

std::string Differences(const IVXFormatPreset& preset,
                        const std::shared_ptr<const IVXFormatParameter>& source)
{
    const std::shared_ptr<const IVXFormatParameter> matched = preset.MatchForSource(source);
    const auto reasoned = ReasonsOf(preset, *source).output;
    return Differences(matched->GetVideoCodecParameter(), reasoned->GetVideoCodecParameter(), VideoRows()) +
           Differences(matched->GetAudioCodecParameter(), reasoned->GetAudioCodecParameter(), AudioRows());
}

/// The values of a stream that have something to show and no reason.
std::string Unreasoned(const Stream& stream, const StreamReasons& reasons, std::span<const MatchRow> rows)
{
    std::string text;
    if (!stream)
        return text;
    for (const auto& row : rows)
        if (!row.text(*stream).empty() && ReasonText(reasons, row.value).empty())
            text += std::string(row.name) + ' ';
    return text;
}

TEST(MatchReasons, AddUpToWhatIsMatchedInEveryPresetOfTheCatalogue)
{
    const QuietLog quiet;
    for (const auto& entry : LoadCatalogue({}).entries)
        for (const auto& source : Apps::ManyFiles())
            EXPECT_EQ("", Differences(*entry.preset, source)) << entry.path;
}

TEST(MatchReasons, StandBesideEveryValueInEveryPresetOfTheCatalogue)
{
    for (const auto& entry : LoadCatalogue({}).entries)
        for (const auto& source : Apps::ManyFiles())
        {
            const auto reasons = ReasonsOf(*entry.preset, *source);
            EXPECT_EQ("", Unreasoned(reasons.output->GetVideoCodecParameter(), reasons.video, VideoRows()))
                << entry.path;
            EXPECT_EQ("", Unreasoned(reasons.output->GetAudioCodecParameter(), reasons.audio, AudioRows()))
                << entry.path;
        }
}

/// Numbers that are the same in every run.
class Dice
{
public:
    /// From 0 to below count; 0 for a count below 1.
    int Below(int count) { return count < 1 ? 0 : static_cast<int>(m_engine() % unsigned(count)); }
    bool Often() { return Below(4) > 0; }

private:
    std::mt19937 m_engine{20260721};
};

void Choose(IVXCodecPreset& preset, Dice& dice)
{
    preset.SetIndexForResolutionPreset(dice.Below(preset.ResolutionPresetCount() + 1));
    preset.SetIndexForFrameratePresets(dice.Below(preset.FrameratePresetCount()));
    preset.SetIndexForQualityPresets(dice.Below(preset.CodecQualityPresetCount()));
    preset.SetIndexForSampleratePresets(dice.Below(preset.SampleratePresetCount()));
    preset.SetIndexForChannelLayoutPresets(dice.Below(preset.ChannelLayoutPresetCount()));
    preset.SetIndexForProfilesPresets(dice.Below(preset.ProfilePresetCount()));
    preset.SetIndexForLevelPresets(dice.Below(preset.LevelPresetCount()));
    preset.SetIndexForSampleFmts(dice.Below(4));
    preset.AspectPreset()->SetAspectType(static_cast<IVXSampleAspectPreset::AspectPresetType>(dice.Below(5)));
    if (const auto quality = preset.CurrentCodecQuality(); quality && !dice.Often())
        quality->SetBitrate(dice.Below(3) * 400'000 - 1);
}

void Choose(IVXFormatPreset& preset, Dice& dice)
{
    preset.SetIndexForVideoCodecPresets(dice.Below(preset.VideoCodecPresetCount()));
    preset.SetIndexForAudioCodecPresets(dice.Below(preset.AudioCodecPresetCount()));
    for (const auto& codec : {preset.CurrentVideoCodec(), preset.CurrentAudioCodec()})
        if (codec)
            Choose(*codec, dice);
    preset.SetMaxWidth(dice.Below(3) * 640);
    preset.SetMaxHeight(dice.Below(3) * 480);
    preset.SetMinWidth(dice.Below(2) * 800);
    preset.SetMaxVideoBitrate(dice.Often() ? -1 : 1'000'000);
    preset.SetMinVideoBitrate(dice.Often() ? -1 : dice.Below(4'000'000));
    preset.SetMaxAudioBitrate(dice.Often() ? -1 : 192'000);
    preset.SetMinAudioBitrate(dice.Often() ? -1 : dice.Below(400'000));
}

TEST(MatchReasons, AddUpToWhatIsMatchedWhateverIsChosen)
{
    const QuietLog quiet;
    Dice dice;
    const auto sources = Apps::ManyFiles();
    for (const auto& container : VXMediaCodecSupportOutputAllMediaFormats())
        for (int i = 0; i < 60; ++i)
        {
            const auto preset = IVXFormatPreset::MallocFormatPreset(container, "");
            Choose(*preset, dice);
            const auto& source = sources[static_cast<std::size_t>(dice.Below(int(sources.size())))];
            ASSERT_EQ("", Differences(*preset, source)) << container << ' ' << i;
        }
}

/// One reason, and what makes it.
struct ReasonCase
{
    const char* what;
    const char* container;
    void (*change)(IVXFormatPreset& preset);
    std::shared_ptr<IVXFormatParameter> (*source)();
    MatchValue value;
    const char* text;
    const char* names; ///< of the steps
};

void PrintTo(const ReasonCase& test, std::ostream* out) { *out << test.what; }

void Nothing(IVXFormatPreset& /*preset*/) {}
std::shared_ptr<IVXFormatParameter> Film() { return FileOf(VideoSource{}, AudioSource{}); }
std::shared_ptr<IVXFormatParameter> Untimed() { return FileOf(VideoSource{.num = 0}); }
std::shared_ptr<IVXFormatParameter> Wide()
{
    return FileOf(VideoSource{.width = 720, .height = 576, .aspectNum = 64, .aspectDen = 45});
}
std::shared_ptr<IVXFormatParameter> Odd() { return FileOf(VideoSource{.width = 641, .height = 361}); }
std::shared_ptr<IVXFormatParameter> Sizeless() { return FileOf(VideoSource{.width = 0, .height = 0}); }
std::shared_ptr<IVXFormatParameter> Music() { return FileOf(AudioSource{.sampleRate = 44'100}); }
std::shared_ptr<IVXFormatParameter> Speech() { return FileOf(AudioSource{.sampleRate = 8'000}); }
std::shared_ptr<IVXFormatParameter> Surround() { return FileOf(AudioSource{.layout = 0x3F, .bitrate = 0}); }

/// The video codec preset, which stands behind the one of no codec.
IVXCodecPreset& Video(IVXFormatPreset& preset)
{
    preset.SetIndexForVideoCodecPresets(1);
    return *preset.CurrentVideoCodec();
}
void ChooseVideo(IVXFormatPreset& preset) { Video(preset); }
void ChooseSize(IVXFormatPreset& preset)
{
    auto& video = Video(preset);
    video.AddResolutionPreset(1281, 720);
    video.SetIndexForResolutionPreset(video.ResolutionPresetCount() - 1);
}
void BoundSize(IVXFormatPreset& preset)
{
    preset.SetMaxWidth(1280);
    preset.SetMaxHeight(1080);
}
void ChooseGrade(IVXFormatPreset& preset) { Video(preset).SetIndexForQualityPresets(3); }
void ChooseBitrate(IVXFormatPreset& preset)
{
    ChooseGrade(preset);
    preset.CurrentVideoCodec()->CurrentCodecQuality()->SetBitrate(900'000);
}
void BoundBitrate(IVXFormatPreset& preset)
{
    ChooseGrade(preset);
    preset.SetMaxVideoBitrate(2'000'000);
    preset.SetMinVideoBitrate(1'000'000);
}
void BoundBelowTheRange(IVXFormatPreset& preset)
{
    preset.SetMaxVideoBitrate(1000);
    preset.SetMinVideoBitrate(2000);
}
/// ProRes at its lowest profile, Proxy.
void ChooseProfile(IVXFormatPreset& preset)
{
    const auto video = IVXCodecPreset::MallocCodecPreset(VXCodecID_ProRes);
    video->AddProfilePreset(0);
    video->SetIndexForProfilesPresets(video->ProfilePresetCount() - 1);
    preset.InsertVideoCodecPreset(video, 0);
    preset.SetIndexForVideoCodecPresets(0);
}
void BoundProRes(IVXFormatPreset& preset)
{
    preset.InsertVideoCodecPreset(IVXCodecPreset::MallocCodecPreset(VXCodecID_ProRes), 0);
    preset.SetIndexForVideoCodecPresets(0);
    preset.SetMaxVideoBitrate(100'000'000);
    preset.SetMinVideoBitrate(99'999'999);
}
class ReasonOfAValue : public testing::TestWithParam<ReasonCase>
{
};

TEST(MatchReasons, SayNothingToTheLog)
{
    const QuietLog quiet;
    const auto preset = IVXFormatPreset::MallocFormatPreset("MP4", "");
    BoundBelowTheRange(*preset);
    ReasonsOf(*preset, *Film());
    EXPECT_EQ(0, quiet.Lines());
}

TEST_P(ReasonOfAValue, IsTold)
{
    const auto& test = GetParam();
    const auto preset = IVXFormatPreset::MallocFormatPreset(test.container, "");
    test.change(*preset);
    const auto source = test.source();
    const auto reasons = ReasonsOf(*preset, *source);
    const auto& stream = source->GetVideoCodecParameter() ? reasons.video : reasons.audio;
    EXPECT_EQ(test.text, ReasonText(stream, test.value));
    std::string names;
    for (const auto& step : stream.at(test.value))
        names += (names.empty() ? "" : " ") + std::string(ReasonName(step.reason));
    EXPECT_EQ(test.names, names);
}

const std::array kReasons{
    ReasonCase{"FirstCodec", "MP4", Nothing, Film, MatchValue::Codec,
               "first of the list with an encoder here", "first"},
    ReasonCase{"ChosenCodec", "MP4", ChooseVideo, Film, MatchValue::Codec, "chosen in the preset", "chosen"},
    ReasonCase{"SourcesSize", "MP4", Nothing, Film, MatchValue::Size, "taken from the source", "source"},
    ReasonCase{"DisplayedSize", "MP4", Nothing, Wide, MatchValue::Size, "taken from the source as displayed",
               "source"},
    ReasonCase{"SnappedSize", "MP4", Nothing, Odd, MatchValue::Size,
               "taken from the source, snapped by the codec from 641 x 361", "source snapped"},
    ReasonCase{"UnknownSize", "MP4", Nothing, Sizeless, MatchValue::Size,
               "the codec's usual as none is known", "snapped"},
    ReasonCase{"ChosenSize", "MP4", ChooseSize, Film, MatchValue::Size,
               "chosen in the preset, snapped by the codec from 1281 x 720", "chosen snapped"},
    ReasonCase{"BoundedSize", "MP4", BoundSize, Film, MatchValue::Size,
               "taken from the source, bounded by the preset (at most 1280 wide) from 1920 x 1080",
               "source bounded"},
    ReasonCase{"DisplaySize", "MP4", Nothing, Film, MatchValue::DisplaySize, "from size and sample aspect",
               "follows"},
    ReasonCase{"SourcesFrameRate", "MP4", Nothing, Film, MatchValue::FrameRate, "taken from the source",
               "source"},
    ReasonCase{"FirstFrameRate", "MP4", Nothing, Untimed, MatchValue::FrameRate, "first of the list",
               "first"},
    ReasonCase{"FirstPixelFormat", "MP4", Nothing, Film, MatchValue::Format, "first of the list", "first"},
    ReasonCase{"EncodersProfile", "MP4", Nothing, Film, MatchValue::Profile, "left to the encoder",
               "encoder"},
    ReasonCase{"SampleAspect", "MP4", Nothing, Film, MatchValue::SampleAspect,
               "chosen in the preset (Default)", "chosen"},
    ReasonCase{"SourcesGrade", "MP4", Nothing, Film, MatchValue::Bitrate,
               "from the model at High (the source's grade)", "model"},
    ReasonCase{"ChosenGrade", "MP4", ChooseGrade, Film, MatchValue::Bitrate,
               "from the model at High (chosen in the preset)", "model"},
    ReasonCase{"ChosenBitrate", "MP4", ChooseBitrate, Film, MatchValue::Bitrate, "chosen in the preset",
               "chosen"},
    ReasonCase{"HighestOfAChosenBitrate", "MP4", ChooseBitrate, Film, MatchValue::MaxBitrate,
               "a bitrate chosen is its own highest", "follows"},
    ReasonCase{"BoundedBitrate", "MP4", BoundBitrate, Film, MatchValue::Bitrate,
               "bounded by the preset (1.00 Mb/s to 2.00 Mb/s) at High (chosen in the preset)", "bounded"},
    ReasonCase{"ContradictingBounds", "MP4", BoundBelowTheRange, Film, MatchValue::Bitrate,
               "bounded by the preset (2 kb/s to 1 kb/s) against the codec's 4.00 Mb/s to 17.42 Mb/s",
               "bounded"},
    ReasonCase{"BitrateOfAProfile", "MOV", ChooseProfile, Film, MatchValue::Bitrate,
               "from the model at High (the source's grade), snapped to that of the profile Proxy from "
               "147.15 Mb/s",
               "model snapped"},
    ReasonCase{"NearestBitrateOfAProfile", "MOV", BoundProRes, Film, MatchValue::Bitrate,
               "bounded by the preset (100.00 Mb/s to 100.00 Mb/s) at High (the source's grade), snapped by "
               "the codec from 100.00 Mb/s",
               "bounded snapped"},
    ReasonCase{"UnknownBitrate", "MP4", Nothing, Surround, MatchValue::Bitrate,
               "from the model at Normal (as the source's bitrate is not known)", "model"},
    ReasonCase{"OnlyBitrate", "WAV", Nothing, Music, MatchValue::Bitrate,
               "from the model: the same at every grade", "model"},
    ReasonCase{"SnappedSampleRate", "WEBM", Nothing, Music, MatchValue::SampleRate,
               "taken from the source, snapped by the codec from 44.1 kHz", "source snapped"},
    ReasonCase{"SnappedLayout", "MP3", Nothing, Surround, MatchValue::ChannelLayout,
               "taken from the source, snapped by the codec from 5.1", "source snapped"},
    ReasonCase{"ContainersSampleRate", "DV", Nothing, Speech, MatchValue::SampleRate,
               "taken from the source, set by the container DV from 8 kHz", "source container"},
    ReasonCase{"TagOfAVI", "AVI", Nothing, Film, MatchValue::CodecTag, "set by the container AVI",
               "container"},
    ReasonCase{"ContainersTag", "MP4", Nothing, Film, MatchValue::CodecTag, "left to the container",
               "encoder"},
};

INSTANTIATE_TEST_SUITE_P(Reasons, ReasonOfAValue, testing::ValuesIn(kReasons),
                         [](const auto& test) { return test.param.what; });

} // namespace

} // namespace Vexlor::Tool
