#include "tests/apps/RunTool.h"
#include "tests/foundation/TestFolder.h"

#include "IVXFormatNode.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Vexlor::Apps
{

namespace
{

using Words = std::vector<std::string>;

// With members that nobody reads, at every depth, and in a layout that no program writes.
constexpr std::string_view kDocument = R"({ "version": 7, "name": "Mine",
  "childList": [
    {"name": "Phones", "note": "kept", "formatPresetList": [
      {"name": "A", "formatName": "MP4", "x": [1,2],
       "videoCodecPresets": [
         {"codecID": 1, "y": null,
          "resolutionPresets": [{"width": 0, "height": 0}, {"width": 1280, "height": 720, "why": "hd"}]}],
       "audioCodecPresets": [{"codecID": 1001, "levelPresets": []}]},
      {"name": "B", "formatName": "AVI"},
      {"name": "C/D", "formatName": "MKV"}
    ]},
    {"name": "Tablets"}
  ]
}
)";

/// A document in a folder of its own, and the tool that edits it.
class Edit : public testing::Test
{
protected:
    ToolRun Run(Words words)
    {
        words.insert(words.begin() + 1, m_path);
        words.insert(words.begin(), "edit");
        return RunTool(words);
    }

    /// What the tool says of a change that is made, without the file's name.
    std::string Said(const Words& words)
    {
        const auto run = Run(words);
        EXPECT_EQ(0, run.exitCode) << run.err;
        const auto begin = m_path + ": ";
        EXPECT_EQ(0U, run.out.find(begin)) << run.out;
        return run.out.substr(std::min(begin.size(), run.out.size()));
    }

    /// The same of one that is refused; nothing may have changed.
    std::string Refused(const Words& words)
    {
        const auto before = ContentOf(m_path);
        const auto run = Run(words);
        EXPECT_EQ(1, run.exitCode) << run.out;
        EXPECT_EQ("", run.out);
        EXPECT_TRUE(before == ContentOf(m_path));
        const auto begin = m_path + ": not changed: ";
        EXPECT_EQ(0U, run.err.find(begin)) << run.err;
        return run.err.substr(std::min(begin.size(), run.err.size()));
    }

    /// The document with one text in the place of another, which stands there once.
    static std::string With(const std::string& old, const std::string& now)
    {
        std::string text(kDocument);
        const auto at = text.find(old);
        EXPECT_NE(std::string::npos, at) << old;
        EXPECT_EQ(std::string::npos, text.find(old, at + 1)) << old;
        return at == std::string::npos ? text : text.replace(at, old.size(), now);
    }

    std::string Content() const { return ContentOf(m_path); }
    std::string Tree() const { return RunTool({"tree", "--paths", "--document", m_path}).out; }

    TestFolder m_folder;
    std::string m_path = WithContent(m_folder / "presets.json", kDocument);
};

TEST_F(Edit, SetWritesWhatDiffersAndNothingElse)
{
    EXPECT_EQ("set Phones/A\n  resolution: 1280 x 720\n", Said({"set", "Phones/A", "resolution=1280x720"}));
    EXPECT_EQ(With(R"("why": "hd"}]}],)", R"("why": "hd"}],
          "indexForResolutionPreset": 1}],)"),
              Content());
}

TEST_F(Edit, SetPutsAValueThatTheCodecTakesBehindTheList)
{
    EXPECT_EQ("set Phones/A\n  resolution: 640 x 360, new in the list\n",
              Said({"set", "Phones/A", "resolution=640 x 360"}));
    EXPECT_EQ(With(R"("why": "hd"}]}],)", R"("why": "hd"}, {"width": 640, "height": 360}],
          "indexForResolutionPreset": 2}],)"),
              Content());
}

TEST_F(Edit, SetOfAnAbsentMemberPutsItBehindTheLast)
{
    EXPECT_EQ("set Phones/B\n  description: a \"b\"\n", Said({"set", "B", "description=a \"b\""}));
    EXPECT_EQ(With(R"({"name": "B", "formatName": "AVI"})",
                   R"({"name": "B", "formatName": "AVI", "description": "a \"b\""})"),
              Content());
}

TEST_F(Edit, SetOfSeveralValuesGoesInTheirOrder)
{
    EXPECT_EQ("set Phones/A\n  video-codec: HEVC, new in the list\n  video-profile: Main 10\n",
              Said({"set", "Phones/A", "video-codec=hevc", "video-profile=main10"}));
}

TEST_F(Edit, RenameChangesTheNameAlone)
{
    EXPECT_EQ("renamed Phones/B to Phones/E\\/F\n", Said({"rename", "Phones/B", "E/F"}));
    EXPECT_EQ(With("\"B\"", "\"E/F\""), Content());
}

TEST_F(Edit, RenameOfTheRootChangesTheDocumentsName)
{
    EXPECT_EQ("renamed / to Ours\n", Said({"rename", "/", "Ours"}));
    EXPECT_EQ(With("\"Mine\"", "\"Ours\""), Content());
}

TEST_F(Edit, RemoveTakesAPresetOutWithItsComma)
{
    EXPECT_EQ("removed Phones/B\n", Said({"remove", "Phones/B"}));
    EXPECT_EQ(With(R"(,
      {"name": "B", "formatName": "AVI"})",
                   ""),
              Content());
}

TEST_F(Edit, RemoveOfTheFirstLeavesTheSecondInItsPlace)
{
    Said({"remove", "Phones/A"});
    EXPECT_EQ("Phones/B\nPhones/C\\/D\n", Tree());
    EXPECT_THAT(Content(), testing::HasSubstr("\"formatPresetList\": [\n      {\"name\": \"B\""));
}

TEST_F(Edit, RemoveTakesSeveralOut)
{
    EXPECT_EQ("removed Phones/A\n" + m_path + ": removed Tablets\n" + m_path + ": removed Phones/C\\/D\n",
              Said({"remove", "A", "Tablets", "C/D"}));
    EXPECT_EQ("Phones/B\n", Tree());
}

TEST_F(Edit, RemoveOfACategoryThatIsNotEmptyWantsToBeTold)
{
    EXPECT_EQ("\"Phones\" is not empty: 3 presets, 0 categories\n", Refused({"remove", "Phones"}));
    EXPECT_EQ("removed Phones\n", Said({"remove", "Phones", "--recursive"}));
    EXPECT_EQ(R"({ "version": 7, "name": "Mine",
  "childList": [
    {"name": "Tablets"}
  ]
}
)",
              Content());
}

TEST_F(Edit, RemoveOfAllLeavesAnEmptyList)
{
    Said({"remove", "Phones", "Tablets", "--recursive"});
    EXPECT_EQ("{ \"version\": 7, \"name\": \"Mine\",\n  \"childList\": []\n}\n", Content());
}

TEST_F(Edit, MoveWithinACategory)
{
    EXPECT_EQ("moved Phones/C\\/D to Phones/C\\/D\n", Said({"move", "C/D", "--before", "A"}));
    EXPECT_EQ("Phones/C\\/D\nPhones/A\nPhones/B\n", Tree());
}

TEST_F(Edit, MoveBehindASibling)
{
    Said({"move", "A", "--after", "B"});
    EXPECT_EQ("Phones/B\nPhones/A\nPhones/C\\/D\n", Tree());
}

TEST_F(Edit, MoveToTheEndIsTheDefault)
{
    Said({"move", "A"});
    EXPECT_EQ("Phones/B\nPhones/C\\/D\nPhones/A\n", Tree());
}

TEST_F(Edit, MoveToWhereItIsChangesNothing)
{
    Said({"move", "B", "--after", "A"});
    Said({"move", "A", "--first"});
    EXPECT_EQ(kDocument, Content());
}

TEST_F(Edit, MoveIntoAnotherCategoryKeepsWhatNobodyReads)
{
    EXPECT_EQ("moved Phones/A to Tablets/A\n", Said({"move", "A", "--into", "Tablets"}));
    EXPECT_EQ("Phones/B\nPhones/C\\/D\nTablets/A\n", Tree());
    EXPECT_THAT(Content(), testing::HasSubstr(R"("x": [1,2])"));
    EXPECT_THAT(Content(), testing::HasSubstr(R"("why": "hd")"));
}

TEST_F(Edit, MoveOfACategoryIntoAnother)
{
    Said({"move", "Phones", "--into", "Tablets"});
    EXPECT_EQ("Tablets/Phones/A\nTablets/Phones/B\nTablets/Phones/C\\/D\n", Tree());
}

TEST_F(Edit, MoveOfACategoryIntoItselfIsRefused)
{
    EXPECT_EQ("\"Phones\" cannot be moved into itself\n", Refused({"move", "Phones", "--into", "Phones"}));
}

TEST_F(Edit, CloneMakesTheCategoryOfOnesOwn)
{
    EXPECT_EQ("cloned Phones/A as Customised/A\n", Said({"clone", "A"}));
    EXPECT_EQ("cloned Phones/A as Customised/A 2\n", Said({"clone", "Phones/A"}));
    EXPECT_EQ("Phones/A\nPhones/B\nPhones/C\\/D\nCustomised/A\nCustomised/A 2\n", Tree());
    const auto root = IVXFormatNode::MallocFormatNode(ReadJsonFile(m_path));
    EXPECT_EQ(10000000, root->FindChild("Customised")->FaceID());
}

TEST_F(Edit, CloneFindsTheCategoryOfOnesOwnByItsIcon)
{
    WithContent(m_path, With(R"("Tablets")", R"("Eigene", "faceID": 10000000)"));
    EXPECT_EQ("cloned Phones/B as Eigene/B\n", Said({"clone", "B"}));
}

TEST_F(Edit, CloneOfACategoryCopiesAllOfIt)
{
    EXPECT_EQ("cloned Phones as Tablets/Small\n",
              Said({"clone", "Phones", "--into", "Tablets", "--name", "Small"}));
    EXPECT_THAT(Tree(), testing::EndsWith("Tablets/Small/A\nTablets/Small/B\nTablets/Small/C\\/D\n"));
}

TEST_F(Edit, CloneWithOtherValues)
{
    EXPECT_EQ(
        "cloned Phones/A as Tablets/Slow\n  frame-rate: 25 fps, new in the list\n  video-bitrate: 5.00 "
        "Mb/s\n",
        Said({"clone", "A", "--into", "Tablets", "--name", "Slow", "frame-rate=25", "video-bitrate=5M"}));
    const auto json = ReadJsonFile(m_path);
    const auto slow =
        (*(*(*json)["childList"]->At(1))["formatPresetList"]->At(0)).GetValueInt("minVideoBitrate");
    EXPECT_EQ(5'000'000, slow);
}

TEST_F(Edit, AddOfAPresetOfAContainer)
{
    EXPECT_EQ("added Tablets/New\n  video-codecs: H.264\n  audio-codecs: none\n",
              Said({"add", "Tablets/New", "--container", "MKV", "video-codecs=H.264", "audio-codecs=none"}));
    const auto root = IVXFormatNode::MallocFormatNode(ReadJsonFile(m_path));
    EXPECT_EQ("Tablets/New\n", Tree().substr(Tree().find("Tablets")));
    EXPECT_EQ(0U, RunTool({"check", m_path}).out.find(m_path + ":1:3: warning: version"));
}

TEST_F(Edit, AddOfACopyOfAPresetOfAnotherDocument)
{
    const auto other = WithContent(m_folder / "other.json",
                                   R"({"formatPresetList": [{"name": "Any", "formatName": "OGG"}]})");
    EXPECT_EQ("added Tablets/Some\n",
              Said({"add", "Tablets/Some", "--from", "any", "--from-document", other}));
    EXPECT_THAT(Content(), testing::HasSubstr("\"formatName\": \"OGG\""));
}

TEST_F(Edit, AddOfACategoryWithItsParents)
{
    EXPECT_EQ("no category \"Discs\"\n", Refused({"add", "Discs/Old/VCD", "--category"}));
    EXPECT_EQ("added Discs/Old/VCD\n  face: 10000003 (CategoryFaceIDVideo)\n",
              Said({"add", "Discs/Old/VCD", "--category", "--parents", "face=CategoryFaceIDVideo"}));
    const auto root = IVXFormatNode::MallocFormatNode(ReadJsonFile(m_path));
    EXPECT_EQ(10000003, root->FindChild("Discs")->FindChild("Old")->FindChild("VCD")->FaceID());
}

TEST_F(Edit, AddWantsToKnowWhat)
{
    for (const auto& words : {Words{"add", "P"}, Words{"add", "P", "--category", "--container", "MP4"}})
    {
        const auto run = Run(words);
        EXPECT_EQ(2, run.exitCode);
        EXPECT_EQ("vxpresets: one of --category, --container and --from is required\n", run.err);
    }
    EXPECT_EQ(kDocument, Content());
}

TEST_F(Edit, OnlyOnePlaceIsTaken)
{
    EXPECT_EQ(2, Run({"move", "A", "--before", "B", "--first"}).exitCode);
    EXPECT_EQ(2, Run({"move", "A", "--before", "B", "--after", "C/D"}).exitCode);
}

TEST_F(Edit, AddMakesTheDocument)
{
    m_path = m_folder / "new.json";
    EXPECT_EQ("added Mine\n", Said({"add", "Mine", "--category"}));
    EXPECT_EQ(R"({
  "childList": [
    {
      "name": "Mine",
      "description": "",
      "faceID": 0,
      "formatPresetList": [],
      "childList": []
    }
  ]
})",
              Content());
}

TEST_F(Edit, OtherCommandsWantADocument)
{
    const auto path = m_folder / "none.json";
    const auto run = RunTool({"edit", "remove", path, "A"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ(path + ": No such file or directory\n", run.err);
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(Edit, ADocumentOnOneLineStaysOnOne)
{
    WithContent(m_path, R"({"childList":[{"name":"a"}]})");
    Said({"add", "b", "--category"});
    Said({"set", "a", "description=x"});
    EXPECT_EQ(R"({"childList":[{"name":"a", "description": "x"}, )"
              R"({"name": "b", "description": "", "faceID": 0, "formatPresetList": [], "childList": []}]})",
              Content());
}

TEST_F(Edit, LineEndsOfTheDocumentAreTaken)
{
    WithContent(m_path, "{\r\n\t\"childList\": [\r\n\t\t{\"name\": \"a\"}\r\n\t]\r\n}");
    Said({"add", "b", "--category"});
    EXPECT_EQ("{\r\n\t\"childList\": [\r\n\t\t{\"name\": \"a\"},\r\n\t\t{\r\n\t\t  \"name\": \"b\",\r\n\t\t  "
              "\"description\": \"\",\r\n\t\t  \"faceID\": 0,\r\n\t\t  \"formatPresetList\": [],\r\n\t\t  "
              "\"childList\": []\r\n\t\t}\r\n\t]\r\n}",
              Content());
}

TEST_F(Edit, AByteOrderMarkStays)
{
    const std::string mark = "\xEF\xBB\xBF";
    WithContent(m_path, mark + R"({"name": "a"})");
    Said({"rename", "/", "b", "--backup"});
    EXPECT_EQ(mark + R"({"name": "b"})", Content());
    EXPECT_EQ(mark + R"({"name": "a"})", ContentOf(m_path + ".bak"));
}

TEST_F(Edit, BackupKeepsTheOldFile)
{
    std::filesystem::permissions(m_path, std::filesystem::perms(0640));
    Said({"rename", "A", "Z", "--backup"});
    EXPECT_EQ(kDocument, ContentOf(m_path + ".bak"));
    EXPECT_EQ(std::filesystem::perms(0640), std::filesystem::status(m_path + ".bak").permissions());
    EXPECT_EQ(std::filesystem::perms(0640), std::filesystem::status(m_path).permissions());
}

TEST_F(Edit, BackupStaysWhereNothingChanges)
{
    Said({"rename", "A", "Z", "--backup"});
    Said({"set", "Z", "description=x", "--backup"});
    const auto backup = ContentOf(m_path + ".bak");
    Said({"set", "Z", "description=x", "--backup"});
    EXPECT_EQ(backup, ContentOf(m_path + ".bak"));
}

TEST_F(Edit, BackupThatCannotBeWrittenCostsNothing)
{
    std::filesystem::create_directory(m_path + ".bak");
    EXPECT_EQ(m_path + ".bak: not a regular file\n", Refused({"rename", "A", "Z", "--backup"}));
}

TEST_F(Edit, AListOfLevelsAndItsIndexAreCompletedTogether)
{
    WithContent(m_path, R"({"formatPresetList": [{"name": "P", "formatName": "MP4", "videoCodecPresets": [
 {"codecID": 1, "indexForLevelPresets": 1, "levelPresets": [{"level": 30, "name": "3"}, {"level": 40, "name": "4"}]}]}]})");
    Said({"set", "P", "video-level=3"});
    const auto root = IVXFormatNode::MallocFormatNode(ReadJsonFile(m_path));
    const auto show = RunTool({"show", "P", "--document", m_path}).out;
    EXPECT_THAT(show, testing::HasSubstr("Unknown, [3], 4\n"));
}

TEST_F(Edit, AGradeIsTakenUpAgain)
{
    Said({"set", "A", "video-quality=best"});
    Said({"set", "A", "description=x"});
    const auto show = RunTool({"show", "A", "--document", m_path}).out;
    EXPECT_THAT(show, testing::HasSubstr("High, [Best], Custom"));
    Said({"set", "A", "video-quality=auto"});
    EXPECT_THAT(RunTool({"show", "A", "--document", m_path}).out, testing::HasSubstr("[Auto], Low, Normal"));
}

TEST_F(Edit, APointerNamesWhatHasNoNameOfItsOwn)
{
    WithContent(
        m_path,
        R"({"formatPresetList": [{"name": "P", "formatName": "MP4"}, {"name": "P", "formatName": "AVI"}]})");
    EXPECT_EQ("\"P\" is more than one preset or category: \"/formatPresetList/0\", \"/formatPresetList/1\"\n",
              Refused({"remove", "P"}));
    EXPECT_EQ("removed P\n", Said({"remove", "/formatPresetList/1"}));
    EXPECT_EQ(R"({"formatPresetList": [{"name": "P", "formatName": "MP4"}]})", Content());
}

TEST_F(Edit, JsonTellsWhatWasDone)
{
    const auto json = ParseJson(Run({"set", "A", "resolution=640x360", "--json"}).out);
    ASSERT_NE(nullptr, json);
    EXPECT_EQ(m_path, json->GetValueString("file"));
    EXPECT_EQ(R"({"action":"set","path":"Phones/A","from":"","settings":[)"
              R"({"key":"resolution","value":"640 x 360","added":true}]})",
              JsonText(*(*json)["changes"]->At(0)));
}

TEST_F(Edit, AFaultyDocumentIsToldWithItsPlace)
{
    WithContent(m_path, "{\n  \"name\": }");
    const auto run = Run({"rename", "A", "B"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_THAT(run.err, testing::StartsWith(m_path + ":2:11: "));
}

TEST_F(Edit, ADocumentThatIsNoObjectIsRefused)
{
    WithContent(m_path, "[]");
    EXPECT_EQ(m_path + ": is not a JSON object\n", Run({"add", "A", "--category"}).err);
}

TEST_F(Edit, WhatTheLibraryCouldNotReadIsNotWritten)
{
    std::string deep;
    for (int i = 0; i < 511; ++i)
        deep += R"({"name":"n","childList":[)";
    deep += "{\"name\":\"last\"}";
    for (int i = 0; i < 511; ++i)
        deep += "]}";
    WithContent(m_path, deep);
    EXPECT_THAT(Refused({"clone", "last", "--into", "last"}), testing::HasSubstr("nested deeper than"));
}

TEST_F(Edit, CodecsThatStayKeepWhatTheyAreSetTo)
{
    Said({"set", "A", "video-codecs=HEVC,H.264"});
    EXPECT_THAT(Content(), testing::HasSubstr("\"why\": \"hd\""));
    EXPECT_THAT(RunTool({"show", "A", "--document", m_path}).out,
                testing::HasSubstr("Video codec      [HEVC], H.264\n"));
}

TEST_F(Edit, NoCodecsLeaveAStreamOut)
{
    EXPECT_EQ("set Phones/A\n  audio-codecs: none\n", Said({"set", "A", "audio-codecs=none"}));
    EXPECT_THAT(Content(), testing::HasSubstr(R"("audioCodecPresets": [])"));
}

struct RefusedCase
{
    const char* what;
    Words words;
    const char* reason;
};

void PrintTo(const RefusedCase& test, std::ostream* out) { *out << test.what; }

class EditRefused : public Edit, public testing::WithParamInterface<RefusedCase>
{
};

// Three dots stand for lists that belong to the codecs' tables.
TEST_P(EditRefused, IsToldAndChangesNothing)
{
    const std::string reason = GetParam().reason;
    const auto said = Refused(GetParam().words);
    if (reason.ends_with("..."))
        EXPECT_THAT(said, testing::StartsWith(reason.substr(0, reason.size() - 3)));
    else
        EXPECT_EQ(reason + '\n', said);
}

const std::vector<RefusedCase> kRefused{
    {"UnknownPath",
     {"remove", "Phons"},
     R"(no preset or category "Phons"; nearest: "Phones", "Phones/A", "Phones/B")"},
    {"PartOfAName",
     {"remove", "Tab"},
     R"(no preset or category "Tab"; nearest: "Phones/A", "Phones/B", "Phones/C\/D")"},
    {"NoSuchPointer", {"remove", "/childList/9"}, R"(nothing stands at "/childList/9")"},
    {"PointerToSomethingElse", {"remove", "/name"}, R"(nothing stands at "/name")"},
    {"RemoveTheRoot", {"remove", "/"}, "the root cannot be removed"},
    {"MoveTheRoot", {"move", "/"}, "the root cannot be moved"},
    {"CloneTheRoot", {"clone", "/"}, "the root cannot be cloned"},
    {"EmptyName", {"rename", "A", ""}, "the name is empty"},
    {"NameThatIsTaken", {"rename", "A", "B"}, R"("Phones/B" is there already)"},
    {"AddWhatIsThere", {"add", "Phones/A", "--container", "MP4"}, R"("Phones/A" is there already)"},
    {"AddBelowAPreset", {"add", "Phones/A/B", "--category"}, R"(no category "Phones/A")"},
    {"AddWithoutAName", {"add", "Phones/", "--category"}, "the name is empty"},
    {"UnknownContainer",
     {"add", "P", "--container", "mp4x"},
     R"(no container "mp4x"; there are MP4, MOV, ...)"},
    {"CloneToATakenName",
     {"clone", "A", "--into", "Phones", "--name", "B"},
     R"("Phones/B" is there already)"},
    {"UnknownSibling", {"move", "A", "--before", "X"}, R"(no sibling "X"; nearest: "A", "B", "C/D")"},
    {"NotAPair", {"set", "A", "resolution"}, R"("resolution" is not KEY=VALUE, as in resolution=1280x720)"},
    {"UnknownKey",
     {"set", "A", "resolutoin=1x1"},
     R"(nothing to set is called "resolutoin"; nearest: resolution)"},
    {"KeyOfAPreset",
     {"set", "Phones", "resolution=1x1"},
     R"(a category has no "resolution", but description and face)"},
    {"NoSize", {"set", "A", "resolution=big"}, R"(resolution: "big" is none of Auto, 1280 x 720)"},
    {"SizeThatTheCodecDoesNotTake",
     {"set", "A", "resolution=101x99"},
     R"(resolution: H.264 does not take "101x99"; expected such as 102 x 100)"},
    {"FormatOutsideTheList",
     {"set", "A", "video-quality=superb"},
     R"(video-quality: "superb" is none of Auto, Low, Normal, High, Best)"},
    {"CodecThatIsNotChosen",
     {"set", "B", "resolution=1280x720"},
     "resolution: no video codec is chosen; set video-codec first, to one of ..."},
    {"BoundsThatContradict",
     {"set", "A", "max-video-bitrate=1M", "min-video-bitrate=2M"},
     "A/minVideoBitrate: is 2000000, and maxVideoBitrate is 1000000; expected at most 999999"},
    {"BitrateOfNothing",
     {"set", "A", "max-video-bitrate=0"},
     R"(max-video-bitrate: "0" is not a bitrate such as 8M or 192k, or none)"},
    {"NegativePixels", {"set", "A", "max-width=-3"}, R"(max-width: "-3" is not a number of pixels or none)"},
    {"UnknownFace",
     {"set", "A", "face=Nobody"},
     R"(face: vxpresets: no face identifier "Nobody"; nearest: ...)"},
    {"NoRatio",
     {"set", "A", "sample-aspect=4:0"},
     R"(sample-aspect: "4:0" is no ratio such as 4:3 and none of ...)"},
    {"NotUtf8", {"set", "A", "description=\xff"}, "\"\xEF\xBF\xBD\" is not UTF-8"},
};

INSTANTIATE_TEST_SUITE_P(Words, EditRefused, testing::ValuesIn(kRefused),
                         [](const auto& test) { return std::string(test.param.what); });

struct SetCase
{
    const char* what;
    Words settings;
    const char* said;    ///< behind "set P"
    std::string members; ///< that the preset then has
};

void PrintTo(const SetCase& test, std::ostream* out) { *out << test.what; }

class EditSet : public Edit, public testing::WithParamInterface<SetCase>
{
};

std::string VideoWith(const std::string& members)
{
    return R"("videoCodecPresets": [{"codecID": 1)" + members +
           R"(}], "audioCodecPresets": [{"codecID": 1001}])";
}

std::string AudioWith(const std::string& members)
{
    return R"("videoCodecPresets": [{"codecID": 1}], "audioCodecPresets": [{"codecID": 1001)" + members +
           "}]";
}

std::string PresetWith(const std::string& members) { return VideoWith({}) + members; }

std::string Document(const std::string& members)
{
    return R"({"formatPresetList": [{"name": "P", "formatName": "MP4", )" + members + "}]}";
}

TEST_P(EditSet, WritesTheMembers)
{
    WithContent(m_path, Document(PresetWith({})));
    Words words{"set", "P"};
    words.insert(words.end(), GetParam().settings.begin(), GetParam().settings.end());
    EXPECT_EQ(std::string("set P\n") + GetParam().said, Said(words));
    EXPECT_EQ(Document(GetParam().members), Content());
}

const std::vector<SetCase> kSet{
    {"Texts",
     {"description=d", "hint=h"},
     "  description: d\n  hint: h\n",
     PresetWith(R"(, "description": "d", "formatHint": "h")")},
    {"FaceByName",
     {"face=MKV"},
     "  face: 20000003 (FormatFaceIDMKV)\n",
     PresetWith(R"(, "faceID": 20000003)")},
    {"FaceByNumber", {"face=5"}, "  face: 5\n", PresetWith(R"(, "faceID": 5)")},
    {"LargestSize",
     {"max-size=1280x720"},
     "  max-size: 1280 x 720\n",
     PresetWith(R"(, "maxWidth": 1280, "maxHeight": 720)")},
    {"SizeInItsParts",
     {"max-width=100", "max-height=90", "min-width=16", "min-height=14"},
     "  max-width: 100\n  max-height: 90\n  min-width: 16\n  min-height: 14\n",
     PresetWith(R"(, "maxWidth": 100, "maxHeight": 90, "minWidth": 16, "minHeight": 14)")},
    {"NoSizes", {"max-size=none", "min-width=none"}, "  max-size: none\n  min-width: none\n", PresetWith({})},
    {"Bitrates",
     {"max-video-bitrate=8 Mb/s", "min-video-bitrate=500k", "max-audio-bitrate=320000",
      "min-audio-bitrate=64kbps"},
     "  max-video-bitrate: 8.00 Mb/s\n  min-video-bitrate: 500 kb/s\n  max-audio-bitrate: 320 kb/s\n"
     "  min-audio-bitrate: 64 kb/s\n",
     PresetWith(
         R"(, "maxVideoBitrate": 8000000, "minVideoBitrate": 500000, "maxAudioBitrate": 320000, "minAudioBitrate": 64000)")},
    {"ABitrateOfOnesOwn",
     {"audio-bitrate=192k"},
     "  audio-bitrate: 192 kb/s\n",
     PresetWith(R"(, "maxAudioBitrate": 192001, "minAudioBitrate": 192000)")},
    {"NoBitrate",
     {"video-bitrate=4M", "video-bitrate=none"},
     "  video-bitrate: 4.00 Mb/s\n  video-bitrate: none\n",
     PresetWith(R"(, "maxVideoBitrate": -1, "minVideoBitrate": -1)")},
    {"Size",
     {"resolution=1280x720"},
     "  resolution: 1280 x 720, new in the list\n",
     VideoWith(R"(, "resolutionPresets": [{"width": 1280, "height": 720}])")},
    {"AutoSize",
     {"resolution=auto"},
     "  resolution: Auto, new in the list\n",
     VideoWith(R"(, "resolutionPresets": [{"width": 0, "height": 0}])")},
    {"FrameRateInDecimals",
     {"frame-rate=23.98"},
     "  frame-rate: 23.976 fps, new in the list\n",
     VideoWith(R"(, "frameratePresets": [{"num": 24000, "den": 1001}])")},
    {"Profile",
     {"video-profile=high"},
     "  video-profile: High, new in the list\n",
     VideoWith(R"(, "profilesPresets": [{"profile": 100, "name": "High"}])")},
    {"Level",
     {"video-level=4.1"},
     "  video-level: 4.1, new in the list\n",
     VideoWith(
         R"(, "indexForLevelPresets": 1, "levelPresets": [{"level": -99, "name": "Unknown"}, {"level": 41, "name": "4.1"}])")},
    {"Grade",
     {"video-quality=high"},
     "  video-quality: High\n",
     VideoWith(R"(, "indexForQualityPresets": 3)")},
    {"PixelFormat",
     {"pixel-format=yuv 4:2:0"},
     "  pixel-format: YUV 4:2:0\n",
     VideoWith(R"(, "indexForSampleFmts": 1)")},
    {"Aspect",
     {"sample-aspect=16:15"},
     "  sample-aspect: 16:15\n",
     VideoWith(R"(, "aspectPreset": {"num": 16, "den": 15, "type": 13})")},
    {"SampleRate",
     {"sample-rate=44.1 kHz"},
     "  sample-rate: 44.1 kHz, new in the list\n",
     AudioWith(R"(, "sampleratePresets": [{"samplerate": 44100}])")},
    {"Channels",
     {"channels=stereo"},
     "  channels: Stereo, new in the list\n",
     AudioWith(R"(, "channelLayoutPresets": [{"chLayout": 3}])")},
    {"ChannelsByMask",
     {"channels=0x4"},
     "  channels: Mono, new in the list\n",
     AudioWith(R"(, "channelLayoutPresets": [{"chLayout": 4}])")},
};

INSTANTIATE_TEST_SUITE_P(Values, EditSet, testing::ValuesIn(kSet),
                         [](const auto& test) { return std::string(test.param.what); });

} // namespace

} // namespace Vexlor::Apps
