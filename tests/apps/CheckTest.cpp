#include "Documents.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "VXMediaCodecs.h"

#include <algorithm>

namespace Vexlor::Apps
{

namespace
{

ToolRun Check(const DocumentFile& file, std::vector<std::string> more = {})
{
    more.insert(more.begin(), {"check", file.Path()});
    return RunTool(more);
}

/// What the tool prints of a document, without the document's own path.
std::string ReportOf(const DocumentFile& file, const std::vector<std::string>& more = {})
{
    auto report = Check(file, more).out;
    for (auto at = report.find(file.Path()); at != std::string::npos; at = report.find(file.Path()))
        report.erase(at, file.Path().size() + 1);
    return report;
}

std::string ReportOf(std::string_view text) { return ReportOf(DocumentFile(text)); }

/// A document, and the one line that is told of it: behind its name and in front of the count.
struct FindingCase
{
    const char* what;
    std::string text;
    std::string line;
};

void PrintTo(const FindingCase& test, std::ostream* out) { *out << test.what; }

class Finding : public testing::TestWithParam<FindingCase>
{
};

TEST_P(Finding, IsToldWithItsPlaceAndEndsInFailureWhenItIsAnError)
{
    const auto isError = GetParam().line.find(": error: ") != std::string::npos;
    const DocumentFile file(GetParam().text);
    const auto run = Check(file);
    EXPECT_EQ(file.Path() + ':' + GetParam().line + '\n' + file.Path() +
                  (isError ? ": 1 error, 0 warnings\n" : ": 0 errors, 1 warning\n"),
              run.out);
    EXPECT_EQ(isError ? 1 : 0, run.exitCode);
    EXPECT_EQ("", run.err);
}

std::vector<FindingCase> OfType()
{
    return {
        {"TextForInteger", "{\n  \"faceID\": \"x\"\n}",
         "2:13: error: faceID: is the text \"x\"; expected an integer of 32 bits"},
        {"IntegerForText", R"({"name": 3})", "1:10: error: name: is 3; expected a text"},
        {"NullForText", R"({"name": null})", "1:10: error: name: is null; expected a text"},
        {"TruthForInteger", R"({"faceID": true})",
         "1:12: error: faceID: is true; expected an integer of 32 bits"},
        {"Fraction", R"({"faceID": 1.5})", "1:12: error: faceID: is 1.5; expected an integer of 32 bits"},
        {"Exponent", R"({"faceID": 1e2})", "1:12: error: faceID: is 1e2; expected an integer of 32 bits"},
        {"Beyond32Bits", R"({"faceID": 2147483648})",
         "1:12: error: faceID: is 2147483648; expected an integer of 32 bits"},
        {"Beyond64Bits", R"({"faceID": 99999999999999999999})",
         "1:12: error: faceID: is 99999999999999999999; expected an integer of 32 bits"},
        {"LongNumber", R"({"faceID": 11111111111111111111111111111111111111111})",
         "1:12: error: faceID: is a longer number; expected an integer of 32 bits"},
        {"LongText", R"({"faceID": "11111111111111111111111111111111111111111"})",
         "1:12: error: faceID: is a text; expected an integer of 32 bits"},
        {"ObjectForList", R"({"childList": {}})",
         "1:15: error: childList: is an object; expected a list of objects"},
        {"NumberInList", R"({"childList": [{}, 7]})", "1:20: error: childList[1]: is 7; expected an object"},
        {"ListInList", R"({"childList": [[]]})", "1:16: error: childList[0]: is a list; expected an object"},
        {"NoObject", "[]", "1:1: error: is a list; expected an object"},
        {"Number", " 42", "1:2: error: is 42; expected an object"},
    };
}

std::vector<FindingCase> OfMembers()
{
    return {
        {"Unknown", "{\n  \"faceId\": 0\n}",
         "2:3: warning: faceId: nobody reads this member; expected \"faceID\""},
        {"UnknownWithoutAnyNear", R"({"version": 1})", "1:2: warning: version: nobody reads this member"},
        {"UnknownWithMembersOfItsOwn", R"({"gui": {"name": 3, "childList": [1]}})",
         "1:2: warning: gui: nobody reads this member"},
        {"Repeated", R"({"name": "a", "faceID": 0, "name": "b"})",
         "1:28: error: name: stands here again; only the first is read"},
        {"RepeatedInOtherLetters", R"({"name": "a", "n\u0061me": "b"})",
         "1:15: error: name: stands here again; only the first is read"},
        {"OfAChild", R"({"childList": [{"name": "a/b", "x": 1}]})",
         "1:32: warning: a\\/b/x: nobody reads this member"},
        {"OfAChildWithoutName", R"({"childList": [{"name": "a"}, {"x": 1}]})",
         "1:32: warning: childList[1]/x: nobody reads this member"},
        {"BehindWideCharacters", R"({"name": "日本語", "x": 1})",
         "1:17: warning: x: nobody reads this member"},
        {"BehindAByteOrderMark", "\xEF\xBB\xBF{\"x\": 1}", "1:2: warning: x: nobody reads this member"},
        {"BehindCarriageReturns", "{\r\n\"x\": 1}", "2:1: warning: x: nobody reads this member"},
        {"WithoutName", R"({"": 1})", "1:2: warning: nobody reads this member"},
    };
}

/// A document of one MP4 preset with those members, which stand on the third line.
std::string PresetWith(const std::string& members)
{
    return "{\"formatPresetList\": [\n{\"name\": \"P\", \"formatName\": \"MP4\",\n" + members + "}]}";
}

std::vector<FindingCase> OfPresets()
{
    return {
        {"ContainerInOtherCase", R"({"formatPresetList": [{"formatName": "mp4"}]})",
         "1:38: error: formatPresetList[0]/formatName: no container \"mp4\" can be written here; expected "
         "\"MP4\""},
        {"IconThatIsNotThere", PresetWith(R"("faceID": 77)"),
         "3:11: warning: P/faceID: no icon 77 in the artwork file"},
        {"IconOfACategory", R"({"faceID": -1})", "1:12: warning: faceID: no icon -1 in the artwork file"},
        {"CurrentOfNone", PresetWith(R"("indexForVideoCodecPresets": 1)"),
         "3:30: error: P/indexForVideoCodecPresets: is 1, but the list is empty; expected 0 or -1"},
        {"CurrentBehindTheEnd", PresetWith(R"("indexForAudioCodecPresets": 1, "audioCodecPresets": [{}])"),
         "3:30: error: P/indexForAudioCodecPresets: is 1, but the list has 1 entry; expected -1 to 0"},
        {"CurrentBelowNone", PresetWith(R"("indexForAudioCodecPresets": -2, "audioCodecPresets": [{}, {}])"),
         "3:30: error: P/indexForAudioCodecPresets: is -2, but the list has 2 entries; expected -1 to 1"},
        {"NegativeSize", PresetWith(R"("maxWidth": -1)"),
         "3:13: error: P/maxWidth: is -1; expected an integer from 0 to 2147483647"},
        {"WidthsCrossed", PresetWith(R"("maxWidth": 10, "maxHeight": 10, "minWidth": 11)"),
         "3:46: error: P/minWidth: is 11, and maxWidth is 10; expected at most 10"},
        {"HeightsCrossed", PresetWith(R"("minHeight": 11, "maxWidth": 10, "maxHeight": 10)"),
         "3:14: error: P/minHeight: is 11, and maxHeight is 10; expected at most 10"},
        {"OneSideBounded", PresetWith(R"("maxWidth": 1280)"),
         "3:13: warning: P/maxWidth: bounds nothing; expected maxWidth and maxHeight above 0"},
        {"LeastAlone", PresetWith(R"("minHeight": 2)"),
         "3:14: warning: P/minHeight: bounds nothing; expected maxWidth and maxHeight above 0"},
        {"BitratesCrossed", PresetWith(R"("maxVideoBitrate": 1000, "minVideoBitrate": 2000)"),
         "3:45: error: P/minVideoBitrate: is 2000, and maxVideoBitrate is 1000; expected at most 999"},
        {"BitratesThatLeaveNoRoom", PresetWith(R"("minAudioBitrate": 64000, "maxAudioBitrate": 64000)"),
         "3:20: error: P/minAudioBitrate: is 64000, and maxAudioBitrate is 64000; expected at most 63999"},
        {"BitrateOfNothing", PresetWith(R"("maxVideoBitrate": 0)"),
         "3:20: error: P/maxVideoBitrate: 0 is a bound; expected -1 for none, or above 0"},
        {"BitrateBelowNone", PresetWith(R"("maxVideoBitrate": -2)"),
         "3:20: error: P/maxVideoBitrate: is -2; expected an integer from -1 to 2147483647"},
        {"PresetsOfOneName",
         R"({"formatPresetList": [{"name": "P", "formatName": "MP4"}, {"name": "P", "formatName": "MP4"}]})",
         "1:68: warning: P/name: has the name of number 0, too; expected a name of its own"},
        {"ChildrenOfOneName", R"({"childList": [{}, {"name": "a"}, {}, {"name": "\u0061"}]})",
         "1:48: warning: a/name: has the name of number 1, too; expected a name of its own"},
    };
}

/// The same with one H.264 preset in it, whose further members stand on the third line.
std::string VideoWith(const std::string& members)
{
    return PresetWith("\"videoCodecPresets\": [{\"codecID\": 1, " + members + "}]");
}

/// The same with AAC.
std::string AudioWith(const std::string& members)
{
    return PresetWith("\"audioCodecPresets\": [{\"codecID\": 1001, " + members + "}]");
}

std::vector<FindingCase> OfCodecs()
{
    return {
        {"CodecThatIsNone", PresetWith(R"("videoCodecPresets": [{"codecID": 999}])"),
         "3:35: error: P/videoCodecPresets[0]/codecID: no codec 999; expected a number that \"vxpresets "
         "codecs\" "
         "lists"},
        {"NameOfACodec", VideoWith(R"("name": "AVC")"),
         "3:46: warning: P/videoCodecPresets[0]/name: nobody reads the name of a codec; expected \"H.264\""},
        {"AspectOfNoKind", VideoWith(R"("aspectPreset": {"type": 14})"),
         "3:63: error: P/videoCodecPresets[0]/aspectPreset/type: is 14; expected one of 0, 1, 2, 3, 4, 5, 6, "
         "7, 8, "
         "9, 10, 11, 12, 13, 300, 301, 302, 303"},
        {"AspectWithoutRatio", VideoWith(R"("aspectPreset": {"type": 13, "num": 4})"),
         "3:54: error: P/videoCodecPresets[0]/aspectPreset: type 13 without a ratio; expected num and den "
         "above 0"},
        {"AspectThatIsAText", VideoWith(R"("aspectPreset": "4:3")"),
         "3:54: error: P/videoCodecPresets[0]/aspectPreset: is the text \"4:3\"; expected an object"},
        {"HalfASize", VideoWith(R"("resolutionPresets": [{"width": 1920}])"),
         "3:60: warning: P/videoCodecPresets[0]/resolutionPresets[0]: 1920 x 0 is Auto; expected both sides "
         "above 0, "
         "or both 0"},
        {"NegativeSize", VideoWith(R"("resolutionPresets": [{"width": -2, "height": -2}])"),
         "3:60: warning: P/videoCodecPresets[0]/resolutionPresets[0]: -2 x -2 is Auto; expected both sides "
         "above 0, "
         "or both 0"},
        {"HalfAFrameRate", VideoWith(R"("frameratePresets": [{"num": 30}])"),
         "3:59: warning: P/videoCodecPresets[0]/frameratePresets[0]: 30/0 is Auto; expected num and den "
         "above 0, or num 0"},
        {"NegativeSampleRate", AudioWith(R"("sampleratePresets": [{"samplerate": -48000}])"),
         "3:63: warning: P/audioCodecPresets[0]/sampleratePresets[0]: -48000 Hz is Auto; expected a rate "
         "above 0, or 0"},
        {"AspectWithoutType", VideoWith(R"("aspectPreset": {"num": 16, "den": 15})"),
         "3:54: warning: P/videoCodecPresets[0]/aspectPreset: a ratio without a type is square; expected "
         "type 13 beside "
         "num and den"},
        {"CustomQuality", VideoWith(R"("indexForQualityPresets": 5)"),
         "3:64: warning: P/videoCodecPresets[0]/indexForQualityPresets: is Custom, whose bitrate no document "
         "holds; "
         "expected 0 to 4, and bounds"},
        {"OddSize", VideoWith(R"("resolutionPresets": [{}, {"width": 101, "height": 99}])"),
         "3:64: error: P/videoCodecPresets[0]/resolutionPresets[1]: H.264 does not take 101 x 99; expected "
         "such as "
         "102 x 100"},
        {"FrameRateBelowZero", VideoWith(R"("frameratePresets": [{"num": -25, "den": 1}])"),
         "3:59: error: P/videoCodecPresets[0]/frameratePresets[0]: H.264 does not take -25/1 frames per "
         "second; "
         "expected such as 30/1"},
        {"SoundOfPictures", VideoWith(R"("sampleratePresets": [{"samplerate": 48000}])"),
         "3:60: error: P/videoCodecPresets[0]/sampleratePresets[0]: H.264 does not take 48000 Hz; expected "
         "none, for "
         "the codec has no sound"},
        {"ChannelsOfPictures", VideoWith(R"("channelLayoutPresets": [{"chLayout": 3}])"),
         "3:63: error: P/videoCodecPresets[0]/channelLayoutPresets[0]: H.264 does not take the channel "
         "layout 3; "
         "expected none, for the codec has no sound"},
        {"SizeOfSound", AudioWith(R"("resolutionPresets": [{"width": 2, "height": 2}])"),
         "3:63: error: P/audioCodecPresets[0]/resolutionPresets[0]: AAC does not take 2 x 2; expected none, "
         "for the "
         "codec has no pictures"},
        {"FrameRateOfSound", AudioWith(R"("frameratePresets": [{"num": 25, "den": 1}])"),
         "3:62: error: P/audioCodecPresets[0]/frameratePresets[0]: AAC does not take 25/1 frames per second; "
         "expected "
         "none, for the codec has no pictures"},
        {"LayoutBeyond64Bits", AudioWith(R"("channelLayoutPresets": [{"chLayout": 18446744073709551616}])"),
         "3:79: error: P/audioCodecPresets[0]/channelLayoutPresets[0]/chLayout: is 18446744073709551616; "
         "expected an "
         "integer of 64 bits"},
    };
}

const auto kNameOfCase = [](const auto& test) { return test.param.what; };

INSTANTIATE_TEST_SUITE_P(Types, Finding, testing::ValuesIn(OfType()), kNameOfCase);
INSTANTIATE_TEST_SUITE_P(Members, Finding, testing::ValuesIn(OfMembers()), kNameOfCase);
INSTANTIATE_TEST_SUITE_P(Presets, Finding, testing::ValuesIn(OfPresets()), kNameOfCase);
INSTANTIATE_TEST_SUITE_P(Codecs, Finding, testing::ValuesIn(OfCodecs()), kNameOfCase);

/// A finding whose line ends in a list that belongs to the codecs' tables.
class ListedFinding : public testing::TestWithParam<FindingCase>
{
};

TEST_P(ListedFinding, IsToldWithItsPlace)
{
    const auto report = ReportOf(GetParam().text);
    EXPECT_EQ(0U, report.find(GetParam().line)) << report;
    EXPECT_TRUE(report.ends_with("\n 1 error, 0 warnings\n")) << report;
}

const std::vector<FindingCase> kListed{
    {"NoContainer", R"({"formatPresetList": [{}]})",
     "1:23: error: formatPresetList[0]: formatName is absent; expected one of MP4, MOV, "},
    {"UnknownContainer", R"({"formatPresetList": [{"formatName": "XXXXXXXX"}]})",
     "1:38: error: formatPresetList[0]/formatName: no container \"XXXXXXXX\" can be written here; expected "
     "one of "
     "MP4, MOV, "},
    {"CodecOfAnotherContainer", PresetWith(R"("videoCodecPresets": [{"codecID": 12}])"),
     "3:35: error: P/videoCodecPresets[0]/codecID: MP4 does not take 12 (H.261) here; expected one of 1 "
     "(H.264), 2 "
     "(HEVC), "},
    {"CodecOfTheOtherKind", PresetWith(R"("audioCodecPresets": [{"codecID": 1}])"),
     "3:35: error: P/audioCodecPresets[0]/codecID: MP4 does not take 1 (H.264) here; expected one of 1001 "
     "(AAC), "},
    {"Profile", VideoWith(R"("profilesPresets": [{"profile": -99}, {"profile": 5}])"),
     "3:76: error: P/videoCodecPresets[0]/profilesPresets[1]: H.264 does not take profile 5; expected one of "
     "-99, 66 "
     "(Baseline), "},
    {"ProfileThatIsAbsent", VideoWith(R"("profilesPresets": [{}])"),
     "3:58: error: P/videoCodecPresets[0]/profilesPresets[0]: H.264 does not take profile 0; expected one of "
     "-99, 66 "
     "(Baseline), "},
    {"Level", VideoWith(R"("levelPresets": [{"level": 34}])"),
     "3:55: error: P/videoCodecPresets[0]/levelPresets[0]: H.264 does not take level 34; expected one of "
     "-99, 10 "
     "(1), "},
    {"SampleRate", AudioWith(R"("sampleratePresets": [{"samplerate": 44099}])"),
     "3:63: error: P/audioCodecPresets[0]/sampleratePresets[0]: AAC does not take 44099 Hz; expected one "
     "of "},
    {"ChannelLayout", AudioWith(R"("channelLayoutPresets": [{"chLayout": 18446744073709551615}])"),
     "3:66: error: P/audioCodecPresets[0]/channelLayoutPresets[0]: AAC does not take the channel layout "
     "18446744073709551615; expected such as "},
    {"PixelFormat", VideoWith(R"("indexForSampleFmts": 1000)"),
     "3:60: error: P/videoCodecPresets[0]/indexForSampleFmts: is 1000, but the list has "},
};

INSTANTIATE_TEST_SUITE_P(Codecs, ListedFinding, testing::ValuesIn(kListed), kNameOfCase);

class ListIndex : public testing::TestWithParam<std::pair<const char*, const char*>>
{
};

TEST_P(ListIndex, BehindTheEndIsAnError)
{
    const auto& [index, list] = GetParam();
    const auto members = '"' + std::string(index) + R"(": 2, ")" + list + R"(": [{}, {}])";
    const auto report = ReportOf(PresetWith("\"videoCodecPresets\": [{" + members + "}]"));
    EXPECT_EQ("3:" + std::to_string(28 + std::string(index).size()) + ": error: P/videoCodecPresets[0]/" +
                  index + ": is 2, but the list has 2 entries; expected -1 to 1\n 1 error, 0 warnings\n",
              report);
}

TEST_P(ListIndex, InsideTheListIsRight)
{
    const auto& [index, list] = GetParam();
    for (const auto* position : {"-1", "0", "1"})
    {
        const auto members = '"' + std::string(index) + "\": " + position + ", \"" + list + R"(": [{}, {}])";
        EXPECT_EQ(" 1 preset, nothing wrong\n",
                  ReportOf(PresetWith("\"videoCodecPresets\": [{" + members + "}]")));
    }
}

INSTANTIATE_TEST_SUITE_P(Codecs, ListIndex,
                         testing::Values(std::pair("indexForResolutionPreset", "resolutionPresets"),
                                         std::pair("indexForFrameratePresets", "frameratePresets"),
                                         std::pair("indexForSampleratePresets", "sampleratePresets"),
                                         std::pair("indexForChannelLayoutPresets", "channelLayoutPresets"),
                                         std::pair("indexForProfilesPresets", "profilesPresets"),
                                         std::pair("indexForLevelPresets", "levelPresets")),
                         [](const auto& test) { return test.param.first; });

TEST(Check, QualityIndexBelongsToSixEntriesOrNone)
{
    EXPECT_EQ("3:64: error: P/videoCodecPresets[0]/indexForQualityPresets: is 6, but the list has 6 entries; "
              "expected "
              "-1 to 5\n 1 error, 0 warnings\n",
              ReportOf(VideoWith(R"("indexForQualityPresets": 6)")));
    EXPECT_EQ(" 1 preset, nothing wrong\n", ReportOf(VideoWith(R"("indexForQualityPresets": 4)")));
    EXPECT_EQ("3:50: error: P/videoCodecPresets[0]/indexForQualityPresets: is 1, but the list is empty; "
              "expected 0 or "
              "-1\n 1 error, 0 warnings\n",
              ReportOf(PresetWith(R"("videoCodecPresets": [{"indexForQualityPresets": 1}])")));
}

TEST(Check, OlderNamesOfTheProgramStreamAreTaken)
{
    for (const auto* name : {"MPEG1", "MPEG2"})
        EXPECT_EQ(" 1 preset, nothing wrong\n",
                  ReportOf(std::string(R"({"formatPresetList": [{"formatName": ")") + name +
                           R"(", "videoCodecPresets": [{"codecID": 6}]}]})"));
}

TEST(Check, WhatIsAbsentIsRight) { EXPECT_EQ(" 0 presets, nothing wrong\n", ReportOf("{}")); }

TEST(Check, ElementWithoutNameIsNamedByItsPosition)
{
    EXPECT_EQ(
        "1:62: warning: a/formatPresetList[0]/x: nobody reads this member\n 0 errors, 1 warning\n",
        ReportOf(
            R"({"childList": [{"name": "a", "formatPresetList": [{"name":"","x": 1, "formatName": "MP4"}]}]})"));
}

TEST(Check, FindingsStandInTheOrderOfTheText)
{
    EXPECT_EQ("1:2: warning: x: nobody reads this member\n"
              "1:20: error: faceID: is a list; expected an integer of 32 bits\n"
              "1:39: error: description: is 1; expected a text\n"
              "1:42: warning: y: nobody reads this member\n"
              " 2 errors, 2 warnings\n",
              ReportOf(R"({"x": 1, "faceID": [], "description": 1, "y": 1})"));
}

TEST(Check, IconsAreThoseOfTheFileThatIsNamed)
{
    const auto golden = std::string(VX_GOLDEN_ARTWORK);
    const DocumentFile ours(R"({"faceID": 10000004})");
    EXPECT_EQ(" 0 presets, nothing wrong\n", ReportOf(ours));
    EXPECT_EQ("1:12: warning: faceID: no icon 10000004 in the artwork file\n 0 errors, 1 warning\n",
              ReportOf(ours, {"--artwork", golden}));
}

TEST(Check, ArtworkThatCannotBeReadIsAFailure)
{
    const auto run = Check(DocumentFile("{}"), {"--artwork", "/no/such.artwork"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ("", run.out);
    EXPECT_EQ(0U, run.err.find("/no/such.artwork: ")) << run.err;
}

TEST(Check, DocumentThatCannotBeReadIsAFailure)
{
    const auto run = RunTool({"check", "/no/such/presets.json"});
    EXPECT_EQ("/no/such/presets.json: No such file or directory\n", run.err);
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ("/tmp: Is a directory\n", RunTool({"check", "/tmp"}).err);
}

TEST(Check, AsksForADocument) { EXPECT_EQ(2, RunTool({"check"}).exitCode); }

/// What a text has wrong as JSON is told as the loader tells it.
class Syntax : public testing::TestWithParam<FindingCase>
{
};

TEST_P(Syntax, IsToldAsTheLoaderTellsIt)
{
    std::string error;
    ASSERT_EQ(nullptr, ParseJson(GetParam().text, &error));
    const auto at = error.find(": ");
    EXPECT_EQ(error.substr(0, at) + ": error" + error.substr(at) + "\n 1 error, 0 warnings\n",
              ReportOf(GetParam().text));
    EXPECT_EQ(GetParam().line, error.substr(0, GetParam().line.size()));
}

std::string Nested(int levels)
{
    std::string text;
    for (int i = 0; i < levels; ++i)
        text += R"({"childList":[)";
    return text;
}

const std::vector<FindingCase> kBroken{
    {"NoText", "", "1:1: "},
    {"MissingComma", "{\n  \"name\": \"a\"\n  \"faceID\": 1\n}", "3:3: missing comma"},
    {"HalfACharacter", "{\"name\": \"\xC3\"}", "1:"},
    {"HugeNumber", R"({"faceID": 1e999})", "1:12: number too large"},
    {"NestedTooDeep", Nested(100'000), "1:"},
    {"UnpairedSurrogate", R"({"name": "\ud800"})", "1:"},
};

INSTANTIATE_TEST_SUITE_P(Texts, Syntax, testing::ValuesIn(kBroken), kNameOfCase);

TEST(Check, SyntaxErrorHasAPlaceInJsonToo)
{
    const auto run = Check(DocumentFile("{\n]"), {"--json"});
    EXPECT_EQ(1, run.exitCode);
    const auto json = ParseJson(run.out);
    ASSERT_NE(nullptr, json) << run.out;
    EXPECT_EQ(R"({"severity":"error","rule":"syntax","line":2,"column":1,"path":"","pointer":"",)"
              R"("message":"missing member name","expected":""})",
              Elements(*json->GetValueArray("findings")));
}

TEST(Check, PrintsJson)
{
    const DocumentFile file(R"({"childList": [{"name": "a~/b", "faceId": 1}]})");
    const auto json = RunForJson({"check", file.Path()});
    ASSERT_NE(nullptr, json);
    EXPECT_EQ(file.Path(), json->GetValueString("file"));
    EXPECT_EQ(1, json->GetValueInt("warnings"));
    EXPECT_EQ(0, json->GetValueInt("errors"));
    EXPECT_EQ(
        R"({"severity":"warning","rule":"unknown-member","line":1,"column":33,"path":"a~\\/b/faceId",)"
        R"("pointer":"/childList/0/faceId","message":"nobody reads this member","expected":"\"faceID\""})",
        Elements(*json->GetValueArray("findings")));
}

TEST(Check, PointersEscapeSlashesAndTildes)
{
    const auto json = RunForJson({"check", DocumentFile(R"({"a/b~c": 1})").Path()});
    ASSERT_NE(nullptr, json);
    EXPECT_EQ("/a~1b~0c", json->GetValueArray("findings")->At(0)->GetValueString("pointer"));
}

TEST(Check, NestedDeepIsRead)
{
    constexpr int kLevels = 500;
    auto text = Nested(kLevels) + R"({"x": 1})";
    for (int i = 0; i < kLevels; ++i)
        text += "]}";
    EXPECT_TRUE(
        ReportOf(text).ends_with("/childList[0]/x: nobody reads this member\n 0 errors, 1 warning\n"));
}

TEST(Check, WhatSteersTerminalsIsNotPrinted)
{
    EXPECT_EQ("1:2: warning: \xEF\xBF\xBD[1m: nobody reads this member\n 0 errors, 1 warning\n",
              ReportOf(R"({"\u001b[1m": 1})"));
}

TEST(Check, ThousandOfAKindAreListed)
{
    std::string text = R"({"faceID": "x")";
    for (int i = 0; i < 1500; ++i)
        text += ",\"" + std::to_string(i) + "\":0";
    const auto report = ReportOf(text + '}');
    EXPECT_TRUE(report.ends_with("\n 1 error, 1500 warnings, 500 of them not listed\n"))
        << report.substr(0, 500);
    EXPECT_EQ(1002, std::ranges::count(report, '\n'));
}

// Quadratic work would take hours here.
TEST(Check, ManyFindingsOnOneLineAreCountedOnce)
{
    std::string text = "{";
    for (int i = 0; i < 400'000; ++i)
        text += "\"member" + std::to_string(i) + "\":[{\"a\":0}],";
    const auto report = ReportOf(text + R"("childList":[{"name":"n","x":0},{"name":"n"}]})");
    EXPECT_TRUE(report.ends_with("\n 0 errors, 400002 warnings, 399002 of them not listed\n"));
}

TEST(Check, FindsNothingInTheBuiltInTree)
{
    const DocumentFile file(RunTool({"tree", "--json"}).out);
    EXPECT_TRUE(ReportOf(file).ends_with(" presets, nothing wrong\n")) << ReportOf(file);
}

TEST(Check, FindsNothingInWhatTheLibraryOffersForAnyContainer)
{
    const auto root = IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    for (const auto& name : VXMediaCodecSupportOutputAllMediaFormats())
    {
        root->AddFormatPreset(IVXFormatPreset::MallocFormatPreset(name, {}));
        root->LastFormatPreset()->SetName(name);
    }
    EXPECT_EQ(' ' + std::to_string(root->FormatPresetCount()) + " presets, nothing wrong\n",
              ReportOf(JsonText(*root->JsonValue())));
}

TEST(Check, SeverityStandsOutOnATerminal)
{
    const DocumentFile file(R"({"x": 1})");
    const auto run = RunTool({"check", file.Path()}, {.environment = {"TERM=xterm"}, .onTerminal = true});
    EXPECT_NE(std::string::npos, run.out.find(":1:2: \x1b[1mwarning\x1b[0m: ")) << run.out;
}

} // namespace

} // namespace Vexlor::Apps
