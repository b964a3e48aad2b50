#include "tests/apps/EditedDocument.h"

#include "IVXFormatNode.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <gmock/gmock.h>

namespace Vexlor::Apps
{

namespace
{

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
    EXPECT_EQ("\"Phones\" is not empty: 3 presets, 0 categories; --recursive removes them too\n",
              Refused({"remove", "Phones"}));
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

} // namespace

} // namespace Vexlor::Apps
