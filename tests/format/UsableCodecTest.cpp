#include "tests/format/FormatMatching.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{

namespace
{

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

} // namespace

} // namespace Vexlor
