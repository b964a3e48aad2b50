#include "tests/format/FormatMatching.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace Vexlor
{

namespace
{

using testing::Contains;
using testing::HasSubstr;

constexpr int kHighest = std::numeric_limits<int>::max();

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

} // namespace

} // namespace Vexlor
