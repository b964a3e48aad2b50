#include "tests/format/CodecPresetSide.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "VXMediaCodecs.h"

#include "tests/platform/ScriptedCodecParameter.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace Vexlor
{

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr int kHighest = std::numeric_limits<int>::max();

/// Format presets of video codecs V, W and X and audio codecs A, B and C, and sources of codecs S and T.
class FormatMatching : public testing::Test
{
protected:
    FormatMatching()
    {
        for (const char letter : std::string_view("VWXS"))
            platform.Codec(letter).type = VXCodecTypeVideo;
        for (const char letter : std::string_view("ABCT"))
            platform.Codec(letter).type = VXCodecTypeAudio;
        source->SetVideoCodecParameter(video);
        source->SetAudioCodecParameter(audio);
    }

    std::shared_ptr<IVXFormatPreset> Preset(const std::string& videoList, int videoIndex,
                                            const std::string& audioList, int audioIndex,
                                            const std::string& formatName = "MP4")
    {
        auto preset = IVXFormatPreset::MallocFormatPreset(
            Json(R"({"formatName":")" + formatName + R"(","formatHint":"hint",)" +
                 Members(kVideoSide, videoList, videoIndex) + "," +
                 Members(kAudioSide, audioList, audioIndex) + "}"));
        platform.ForgetCalls();
        return preset;
    }

    std::shared_ptr<IVXCodecParameter> MatchedVideo(const IVXFormatPreset& preset) const
    {
        return preset.MatchForSource(source)->GetVideoCodecParameter();
    }

    std::shared_ptr<IVXCodecParameter> MatchedAudio(const IVXFormatPreset& preset) const
    {
        return preset.MatchForSource(source)->GetAudioCodecParameter();
    }

    ScriptedPlatform platform;
    std::shared_ptr<ScriptedCodecParameter> video = MakeStream('S');
    std::shared_ptr<ScriptedCodecParameter> audio = MakeStream('T');
    std::shared_ptr<IVXFormatParameter> source = IVXFormatParameter::MallocFormatParameter("source", "");
};

const std::string kNoCodec(1, '\0');

TEST_F(FormatMatching, OfNothingHasNoStreams)
{
    const auto preset = Preset("V", 0, "A", 0);
    const auto output = preset->MatchForSource({});
    ASSERT_NE(nullptr, output);
    EXPECT_EQ(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, output->GetAudioCodecParameter());
    EXPECT_EQ("MallocFormatParameter(\"MP4\", \"hint\")\n", platform.CallsText());
}

TEST_F(FormatMatching, HandsContainerAndHintOn)
{
    const auto output = Preset("V", 0, "A", 0)->MatchForSource(source);
    EXPECT_EQ("MP4", output->FormatName());
    EXPECT_EQ("hint", output->FormatHint());
}

TEST_F(FormatMatching, MatchesBothStreamsByTheCurrentCodecs)
{
    const auto output = Preset("VWX", 1, "ABC", 2)->MatchForSource(source);
    EXPECT_EQ('W', output->GetVideoCodecParameter()->GetCodecID());
    EXPECT_EQ('C', output->GetAudioCodecParameter()->GetCodecID());
}

TEST_F(FormatMatching, MatchesVideoBeforeAudio)
{
    Preset("V", 0, "A", 0)->MatchForSource(source);
    EXPECT_THAT(platform.CallsTo("MallocCodecParamter"),
                ElementsAre("MallocCodecParamter(86)", "MallocCodecParamter(65)"));
    EXPECT_EQ("MallocFormatParameter(\"MP4\", \"hint\")", platform.Calls().front());
}

TEST_F(FormatMatching, MatchesEachStreamAgainstItsSource)
{
    video->SetDisplaySize(640, 480);
    audio->SetSampleRate(44100);
    const auto output = Preset("V", 0, "A", 0)->MatchForSource(source);
    EXPECT_EQ(640, output->GetVideoCodecParameter()->GetWidth());
    EXPECT_EQ(44100, output->GetAudioCodecParameter()->GetSampleRate());
}

TEST_F(FormatMatching, LeavesOutTheVideoThatTheSourceLacks)
{
    source->SetVideoCodecParameter({});
    const auto output = Preset("V", 0, "A", 0)->MatchForSource(source);
    EXPECT_EQ(nullptr, output->GetVideoCodecParameter());
    EXPECT_NE(nullptr, output->GetAudioCodecParameter());
}

TEST_F(FormatMatching, LeavesOutTheAudioThatTheSourceLacks)
{
    source->SetAudioCodecParameter({});
    const auto output = Preset("V", 0, "A", 0)->MatchForSource(source);
    EXPECT_NE(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, output->GetAudioCodecParameter());
}

TEST_F(FormatMatching, LeavesOutStreamsWithoutACurrentCodec)
{
    const auto output = Preset("V", -1, "", 0)->MatchForSource(source);
    EXPECT_EQ(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, output->GetAudioCodecParameter());
}

TEST_F(FormatMatching, LimitsAndTagsNothingWhereThereIsNoVideo)
{
    const auto preset = Preset("V", -1, "A", 0, VXFormatNameAVI);
    preset->SetMaxWidth(1);
    preset->SetMaxHeight(1);
    EXPECT_EQ(nullptr, MatchedVideo(*preset));
    source->SetVideoCodecParameter({});
    EXPECT_EQ(nullptr, MatchedVideo(*preset));
}

TEST_F(FormatMatching, MakesANewOutputEachTime)
{
    const auto preset = Preset("V", 0, "A", 0);
    EXPECT_NE(preset->MatchForSource(source), preset->MatchForSource(source));
    EXPECT_NE(preset->DefaultFormatParameter(), preset->DefaultFormatParameter());
}

// Bounds of the bitrates: the grade 3 takes the upper, the grade 0 the lower.

class FormatBitrates : public FormatMatching
{
protected:
    FormatBitrates()
    {
        for (const char letter : std::string_view("VA"))
            platform.Codec(letter).bitrateRange = std::pair(11, 99);
        preset->SetMaxVideoBitrate(4000);
        preset->SetMinVideoBitrate(3000);
        preset->SetMaxAudioBitrate(200);
        preset->SetMinAudioBitrate(100);
    }

    std::string Bitrates(int grade) const
    {
        preset->VideoCodecPreset(0)->SetIndexForQualityPresets(grade + 1);
        preset->AudioCodecPreset(0)->SetIndexForQualityPresets(grade + 1);
        return std::to_string(MatchedVideo(*preset)->GetBitrate()) + " " +
               std::to_string(MatchedAudio(*preset)->GetBitrate());
    }

    std::shared_ptr<IVXFormatPreset> preset = Preset("V", 0, "A", 0);
};

TEST_F(FormatBitrates, BoundTheStreamsEachByItsOwn)
{
    EXPECT_EQ("4000 200", Bitrates(3));
    EXPECT_EQ("3000 100", Bitrates(0));
    EXPECT_EQ("", platform.Log());
}

TEST_F(FormatBitrates, BoundFromOneSideOnly)
{
    preset->SetMinVideoBitrate(-1);
    preset->SetMaxAudioBitrate(-1);
    preset->SetMinAudioBitrate(55);
    EXPECT_EQ("11 55", Bitrates(0));
    EXPECT_EQ("4000 99", Bitrates(3));
}

TEST_F(FormatBitrates, AreTheCodecLibrarysWithoutBounds)
{
    preset->CopyFrom(Preset("V", 0, "A", 0));
    EXPECT_EQ("4000 4000", Bitrates(3));
    EXPECT_THAT(platform.CallsTo("BitrateRangeFor"), IsEmpty());
}

// A usable codec in place of no codec.

struct UsableCase
{
    const char* name;
    std::string codecs; ///< of the list; a zero byte is no codec
    std::string here;   ///< those that the codec library names encoders for
    char expected;      ///< zero: none
    std::vector<std::string> asked;
};

class UsableCodec : public FormatMatching, public testing::WithParamInterface<UsableCase>
{
protected:
    UsableCodec()
    {
        for (const char letter : std::string_view("VWX"))
            if (GetParam().here.find(letter) == std::string::npos)
                platform.Codec(letter).names.clear();
    }

    static int CodecOf(const std::shared_ptr<IVXCodecParameter>& parameter)
    {
        return parameter ? parameter->GetCodecID() : 0;
    }

    /// The codecs objects asked for before the first output was made.
    std::vector<std::string> Asked() const
    {
        std::vector<std::string> asked;
        for (const auto& call : platform.Calls())
        {
            if (call.starts_with("MallocCodecParamter"))
                break;
            if (call.starts_with("MallocCodecs"))
                asked.push_back(call);
        }
        return asked;
    }
};

TEST_P(UsableCodec, StandsInForNoCodecOfVideo)
{
    const auto preset = Preset(GetParam().codecs, 0, "", 0);
    EXPECT_EQ(GetParam().expected, CodecOf(MatchedVideo(*preset)));
    EXPECT_EQ(GetParam().asked, Asked());
}

TEST_P(UsableCodec, StandsInForNoCodecOfAudio)
{
    const auto preset = Preset("", 0, GetParam().codecs, 0);
    EXPECT_EQ(GetParam().expected, CodecOf(MatchedAudio(*preset)));
    EXPECT_EQ(GetParam().asked, Asked());
}

constexpr const char* kAskV = "MallocCodecs(86, true)";
constexpr const char* kAskW = "MallocCodecs(87, true)";
constexpr const char* kAskX = "MallocCodecs(88, true)";

const std::vector<UsableCase> kUsable = {
    {"FirstThatIsHere", kNoCodec + "VWX", "VWX", 'V', {kAskV}},
    {"SkipsWhatIsNotHere", kNoCodec + "VWX", "X", 'X', {kAskV, kAskW, kAskX}},
    {"FirstOfAllWhenNoneIsHere", kNoCodec + "VWX", "", 'V', {kAskV, kAskW, kAskX}},
    {"SkipsNoCodecInTheMiddle", kNoCodec + kNoCodec + "VW" + kNoCodec + "X", "X", 'X', {kAskV, kAskW, kAskX}},
    {"NoneInAListOfNoCodecs", kNoCodec + kNoCodec, "", '\0', {}},
    {"UnknownIsNotHere", kNoCodec + "ZW", "W", 'W', {"MallocCodecs(90, true)", kAskW}},
    {"UnknownStandsInWhenNoneIsHere", kNoCodec + "ZW", "", 'Z', {"MallocCodecs(90, true)", kAskW}},
};
INSTANTIATE_TEST_SUITE_P(Usable, UsableCodec, testing::ValuesIn(kUsable),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(FormatMatching, LooksForAUsableCodecFromTheFrontOfTheList)
{
    EXPECT_EQ('V', MatchedVideo(*Preset("V" + kNoCodec + "W", 1, "", 0))->GetCodecID());
}

TEST_F(FormatMatching, TakesACurrentCodecThatIsNotHere)
{
    platform.Codec('V').names.clear();
    EXPECT_EQ('V', MatchedVideo(*Preset("VW", 0, "", 0))->GetCodecID());
}

TEST_F(FormatMatching, DoesNotGoByTheSourcesCodec)
{
    platform.Codec('S').names = {"here"};
    EXPECT_EQ('V', MatchedVideo(*Preset(kNoCodec + "VS", 0, "", 0))->GetCodecID());
}

// Codec tags.

constexpr std::uint32_t kDiv5 = 0x35564944;
constexpr std::uint32_t kXvid = 0x44495658;

struct TagCase
{
    const char* name;
    const char* container;
    std::vector<int> codecs;
    std::uint32_t tag;
};

class CodecTag : public FormatMatching, public testing::WithParamInterface<TagCase>
{
};

TEST_P(CodecTag, IsSetForSomeCodecsInOneContainer)
{
    const auto& test = GetParam();
    const auto preset = Preset("", 0, "", 0, test.container);
    for (const int codecID : test.codecs)
        preset->AddVideoCodecPreset(codecID);
    const auto output = MatchedVideo(*preset);
    EXPECT_EQ(test.tag, output->GetCodecTag());
    const auto& setters = Scripted(output).Setters();
    EXPECT_EQ(test.tag != 0 ? 1 : 0, std::ranges::count_if(setters, [](const std::string& setter)
                                                           { return setter.starts_with("SetCodecTag"); }));
}

const std::vector<TagCase> kTags = {
    {"DivxInAvi", "AVI", {VXCodecID_DIVX}, kDiv5},
    {"Mpeg4InAvi", "AVI", {VXCodecID_MPEG4}, kXvid},
    {"OtherInAvi", "AVI", {VXCodecID_H264}, 0},
    {"DivxInPlaceOfNoCodec", "AVI", {VXCodecID_None, VXCodecID_DIVX}, kDiv5},
    {"Mpeg4InPlaceOfNoCodec", "AVI", {VXCodecID_None, VXCodecID_MPEG4, VXCodecID_DIVX}, kXvid},
    {"DivxElsewhere", "MP4", {VXCodecID_DIVX}, 0},
    {"Mpeg4Elsewhere", "MP4", {VXCodecID_MPEG4}, 0},
    {"LowerCase", "avi", {VXCodecID_DIVX}, 0},
    {"LongerName", "AVI2", {VXCodecID_DIVX}, 0},
};
INSTANTIATE_TEST_SUITE_P(Tags, CodecTag, testing::ValuesIn(kTags),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(FormatMatching, TagsNoAudio)
{
    const auto preset = Preset("", 0, "", 0, VXFormatNameAVI);
    preset->AddAudioCodecPreset(VXCodecID_DIVX);
    EXPECT_EQ(0U, MatchedAudio(*preset)->GetCodecTag());
}

// Size limits.

struct SizeCase
{
    const char* name;
    int maxWidth;
    int maxHeight;
    int minWidth;
    int minHeight;
    int width;
    int height;
    const char* result;
};

class SizeLimit : public FormatMatching, public testing::WithParamInterface<SizeCase>
{
};

TEST_P(SizeLimit, ActsOnEachSideAlone)
{
    const auto& test = GetParam();
    video->SetDisplaySize(test.width, test.height);
    const auto preset = Preset("V", 0, "", 0);
    preset->SetMaxWidth(test.maxWidth);
    preset->SetMaxHeight(test.maxHeight);
    preset->SetMinWidth(test.minWidth);
    preset->SetMinHeight(test.minHeight);
    const auto output = MatchedVideo(*preset);
    EXPECT_EQ(test.result, std::to_string(output->GetWidth()) + "x" + std::to_string(output->GetHeight()));
}

const std::vector<SizeCase> kSizes = {
    {"BothShrink", 1280, 720, 0, 0, 1920, 1080, "1280x720"},
    {"HeightStillShrinks", 1280, 720, 0, 0, 1920, 800, "1280x720"},
    {"WidthAloneShrinks", 1280, 720, 0, 0, 1920, 600, "1280x600"},
    {"HeightAloneShrinks", 1280, 720, 0, 0, 800, 800, "800x720"},
    {"FitsExactly", 1280, 720, 1280, 720, 1280, 720, "1280x720"},
    {"OnePixelOver", 1280, 720, 0, 0, 1281, 721, "1280x720"},
    {"NoMaxHeightNoLimit", 1280, 0, 0, 0, 1920, 1080, "1920x1080"},
    {"NoMaxWidthNoLimit", 0, 720, 0, 0, 1920, 1080, "1920x1080"},
    {"NegativeMaxIsNoLimit", -1, 720, 0, 0, 1920, 1080, "1920x1080"},
    {"WidthGrows", 1920, 1080, 320, 0, 160, 120, "320x120"},
    {"HeightGrows", 1920, 1080, 0, 240, 160, 120, "160x240"},
    {"BothGrow", 1920, 1080, 320, 240, 160, 120, "320x240"},
    {"MinimaNeedBothMaxima", 1920, 0, 320, 240, 160, 120, "160x120"},
    {"MinimaAloneDoNothing", 0, 0, 320, 240, 160, 120, "160x120"},
    {"OneShrinksOneGrows", 1280, 720, 320, 240, 1920, 120, "1280x240"},
    {"MaxWinsOverALargerMin", 100, 100, 200, 200, 300, 300, "100x100"},
    {"LargerMinStillLifts", 100, 100, 200, 200, 50, 50, "200x200"},
    {"NoRounding", 1279, 719, 0, 0, 1920, 1080, "1279x719"},
    {"HighestMaximaFitAll", kHighest, kHighest, 0, 0, 1920, 1080, "1920x1080"},
};
INSTANTIATE_TEST_SUITE_P(Sizes, SizeLimit, testing::ValuesIn(kSizes),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(FormatMatching, SizeLimitsActBehindTheCodecsChoice)
{
    platform.Codec('V').bestResolution = ScriptedCodec::Size(4000, 3000);
    const auto preset = Preset("V", 0, "", 0);
    preset->SetMaxWidth(1280);
    preset->SetMaxHeight(720);
    const auto output = MatchedVideo(*preset);
    EXPECT_EQ(1280, output->GetWidth());
    EXPECT_THAT(platform.CallsTo("BestBitrateFor"), Contains(HasSubstr("(4000, 3000, ")));
}

TEST_F(FormatMatching, LimitsTheSizeOfNoAudio)
{
    const auto preset = Preset("", 0, "A", 0);
    preset->SetMaxWidth(1920);
    preset->SetMaxHeight(1080);
    preset->SetMinWidth(320);
    EXPECT_EQ(0, MatchedAudio(*preset)->GetWidth());
}

// Without a source.

TEST_F(FormatMatching, OfADefaultTakesTheCurrentCodecs)
{
    const auto output = Preset("VW", 1, "ABC", 2)->DefaultFormatParameter();
    EXPECT_EQ('W', output->GetVideoCodecParameter()->GetCodecID());
    EXPECT_EQ('C', output->GetAudioCodecParameter()->GetCodecID());
    EXPECT_EQ("MP4 hint", output->FormatName() + " " + output->FormatHint());
    EXPECT_THAT(platform.CallsTo("MallocCodecParamter"),
                ElementsAre("MallocCodecParamter(87)", "MallocCodecParamter(67)"));
}

TEST_F(FormatMatching, OfADefaultTakesTheSecondEntryForNoCodec)
{
    platform.Codec('V').names.clear();
    const auto output = Preset(kNoCodec + "VW", 0, "AB" + kNoCodec, 2)->DefaultFormatParameter();
    EXPECT_EQ('V', output->GetVideoCodecParameter()->GetCodecID());
    EXPECT_EQ('B', output->GetAudioCodecParameter()->GetCodecID());
    EXPECT_THAT(platform.CallsTo("Names"), IsEmpty());
}

TEST_F(FormatMatching, OfADefaultTakesASecondEntryOfNoCodecAsItIs)
{
    const auto output = Preset(kNoCodec + kNoCodec + "V", 0, "", 0)->DefaultFormatParameter();
    ASSERT_NE(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(VXCodecID_None, output->GetVideoCodecParameter()->GetCodecID());
}

TEST_F(FormatMatching, OfADefaultLeavesOutStreamsWithoutACurrentCodec)
{
    const auto output = Preset("V", -1, "", 0)->DefaultFormatParameter();
    ASSERT_NE(nullptr, output);
    EXPECT_EQ(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, output->GetAudioCodecParameter());
}

TEST_F(FormatMatching, OfADefaultLeavesOutNoCodecWithoutASecondEntry)
{
    const auto output = Preset(kNoCodec, 0, kNoCodec, 0)->DefaultFormatParameter();
    EXPECT_EQ(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, output->GetAudioCodecParameter());
}

TEST_F(FormatMatching, OfADefaultAppliesNoBounds)
{
    const auto preset = Preset("V", 0, "A", 0);
    preset->SetMaxWidth(10);
    preset->SetMaxHeight(10);
    preset->SetMaxVideoBitrate(100);
    preset->SetMinAudioBitrate(100);
    platform.Codec('V').bestResolution = ScriptedCodec::Size(1920, 1080);
    EXPECT_EQ(1920, preset->DefaultFormatParameter()->GetVideoCodecParameter()->GetWidth());
    EXPECT_THAT(platform.CallsTo("BitrateRangeFor"), IsEmpty());
}

TEST_F(FormatMatching, OfADefaultSetsNoTag)
{
    const auto preset = Preset("", 0, "", 0, VXFormatNameAVI);
    preset->AddVideoCodecPreset(VXCodecID_DIVX);
    EXPECT_EQ(0U, preset->DefaultFormatParameter()->GetVideoCodecParameter()->GetCodecTag());
}

TEST_F(FormatMatching, OfADefaultAsksForNoSourcesCodec)
{
    Preset("V", 0, "A", 0)->DefaultFormatParameter();
    EXPECT_THAT(platform.CallsText(), Not(HasSubstr("EstQualityWithBitrate")));
    EXPECT_THAT(platform.CallsText(), HasSubstr("BestBitrateFor(0, 0, 0/0, -1, 1, \"\")"));
}

} // namespace

} // namespace Vexlor
