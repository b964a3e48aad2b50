#include "tests/apps/EditedDocument.h"

#include <gmock/gmock.h>

namespace Vexlor::Apps
{

namespace
{

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
