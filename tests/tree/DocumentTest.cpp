#include "tests/tree/Outline.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXLevelPreset.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

constexpr int kVideoCodec = 1;
constexpr int kAudioCodec = 1001;

/// A catalogue as a user would have saved it: three levels, presets at two of them, every kind of list.
constexpr const char* kCatalogue = R"({
    "name": "Presets",
    "description": "",
    "faceID": 0,
    "formatPresetList": [],
    "childList": [
        {
            "name": "Devices",
            "description": "Phones, tablets and \"the rest\"",
            "faceID": 12,
            "formatPresetList": [
                {
                    "name": "Any device",
                    "description": "für unterwegs",
                    "formatName": "MP4",
                    "formatHint": "m4v",
                    "faceID": 101,
                    "indexForVideoCodecPresets": 1,
                    "videoCodecPresets": [
                        {
                            "aspectPreset": {"num": 0, "den": 0, "type": 0},
                            "codecID": 0,
                            "name": "",
                            "description": "",
                            "indexForResolutionPreset": 0,
                            "resolutionPresets": [],
                            "indexForFrameratePresets": 0,
                            "frameratePresets": [],
                            "indexForQualityPresets": 0,
                            "indexForSampleratePresets": 0,
                            "sampleratePresets": [],
                            "indexForChannelLayoutPresets": 0,
                            "channelLayoutPresets": [],
                            "indexForProfilesPresets": 0,
                            "profilesPresets": [],
                            "indexForLevelPresets": 0,
                            "levelPresets": [{"level": -99, "name": "Unknown"}],
                            "indexForSampleFmts": 0
                        },
                        {
                            "aspectPreset": {"num": 8, "den": 9, "type": 13},
                            "codecID": 1,
                            "name": "H.264",
                            "description": "the usual one",
                            "indexForResolutionPreset": 2,
                            "resolutionPresets": [
                                {"width": 0, "height": 0},
                                {"width": 1920, "height": 1080},
                                {"width": 1280, "height": 720}
                            ],
                            "indexForFrameratePresets": 1,
                            "frameratePresets": [{"num": 0, "den": 0}, {"num": 30000, "den": 1001}],
                            "indexForQualityPresets": 0,
                            "indexForSampleratePresets": 0,
                            "sampleratePresets": [],
                            "indexForChannelLayoutPresets": 0,
                            "channelLayoutPresets": [],
                            "indexForProfilesPresets": 1,
                            "profilesPresets": [
                                {"profile": -99, "name": "Unknown"},
                                {"profile": 100, "name": "High"}
                            ],
                            "indexForLevelPresets": 2,
                            "levelPresets": [
                                {"level": -99, "name": "Unknown"},
                                {"level": 31, "name": "3.1"},
                                {"level": 40, "name": "4"}
                            ],
                            "indexForSampleFmts": 1
                        }
                    ],
                    "indexForAudioCodecPresets": 0,
                    "audioCodecPresets": [
                        {
                            "aspectPreset": {"num": 0, "den": 0, "type": 0},
                            "codecID": 1001,
                            "name": "AAC",
                            "description": "",
                            "indexForResolutionPreset": 0,
                            "resolutionPresets": [],
                            "indexForFrameratePresets": 0,
                            "frameratePresets": [],
                            "indexForQualityPresets": 0,
                            "indexForSampleratePresets": 1,
                            "sampleratePresets": [{"samplerate": 0}, {"samplerate": 48000}],
                            "indexForChannelLayoutPresets": 2,
                            "channelLayoutPresets": [
                                {"chLayout": 0}, {"chLayout": 3}, {"chLayout": 4611686018427387904}
                            ],
                            "indexForProfilesPresets": -1,
                            "profilesPresets": [],
                            "indexForLevelPresets": 0,
                            "levelPresets": [{"level": -99, "name": "Unknown"}],
                            "indexForSampleFmts": 0
                        }
                    ],
                    "maxWidth": 1920,
                    "minWidth": 16,
                    "maxHeight": 1080,
                    "minHeight": 16,
                    "maxVideoBitrate": 8000000,
                    "minVideoBitrate": 500000,
                    "maxAudioBitrate": 320000,
                    "minAudioBitrate": -1
                }
            ],
            "childList": [
                {
                    "name": "Phones",
                    "description": "",
                    "faceID": 13,
                    "formatPresetList": [
                        {
                            "name": "Ringtone",
                            "description": "",
                            "formatName": "MP3",
                            "formatHint": "",
                            "faceID": 0,
                            "indexForVideoCodecPresets": -1,
                            "videoCodecPresets": [],
                            "indexForAudioCodecPresets": -1,
                            "audioCodecPresets": [],
                            "maxWidth": 0,
                            "minWidth": 0,
                            "maxHeight": 0,
                            "minHeight": 0,
                            "maxVideoBitrate": -1,
                            "minVideoBitrate": -1,
                            "maxAudioBitrate": -1,
                            "minAudioBitrate": -1
                        }
                    ],
                    "childList": []
                }
            ]
        },
        {
            "name": "My own",
            "description": "",
            "faceID": -1,
            "formatPresetList": [],
            "childList": []
        }
    ]
})";

class Document : public testing::Test
{
protected:
    Document()
    {
        auto& video = platform.Codec(kVideoCodec);
        video.defaultName = "H.264";
        video.formats = {0, 5};
        auto& audio = platform.Codec(kAudioCodec);
        audio.type = VXCodecTypeAudio;
        audio.defaultName = "AAC";
    }

    static std::shared_ptr<IVXFormatNode> Load(std::string_view text)
    {
        return IVXFormatNode::MallocFormatNode(Json(text));
    }

    static std::shared_ptr<IVXCodecPreset> VideoCodec(IVXFormatNode& root)
    {
        return root.GetChild(0)->GetFormatPreset(0)->VideoCodecPreset(1);
    }

    ScriptedPlatform platform;
};

TEST_F(Document, IsWrittenAsItWasRead)
{
    EXPECT_EQ(Text(Json(kCatalogue)), Text(Load(kCatalogue)->JsonValue()));
}

TEST_F(Document, IsTheSameWhenItIsWrittenTwice)
{
    const auto once = Text(Load(kCatalogue)->JsonValue());
    EXPECT_EQ(once, Text(Load(once)->JsonValue()));
}

TEST_F(Document, IsTheSameFromAClone)
{
    EXPECT_EQ(Text(Json(kCatalogue)), Text(Load(kCatalogue)->Clone(IVXFormatNode::CloneAll)->JsonValue()));
}

TEST_F(Document, BecomesATree)
{
    EXPECT_EQ("Presets\n"
              "  Devices\n"
              "    - Any device\n"
              "    Phones\n"
              "      - Ringtone\n"
              "  My own\n",
              Outline(*Load(kCatalogue)));
}

TEST_F(Document, CarriesAnEditToTheNextLoad)
{
    const auto root = Load(kCatalogue);
    root->MoveChild(1, 0);
    root->GetChild(1)->GetFormatPreset(0)->SetName("Every device");
    EXPECT_EQ("Presets\n"
              "  My own\n"
              "  Devices\n"
              "    - Every device\n"
              "    Phones\n"
              "      - Ringtone\n",
              Outline(*Load(Text(root->JsonValue()))));
}

TEST_F(Document, LosesTheQualityThatWasChosen)
{
    const auto root = Load(kCatalogue);
    VideoCodec(*root)->SetIndexForQualityPresets(5);
    VideoCodec(*root)->CurrentCodecQuality()->SetBitrate(777);
    const auto reloaded = Load(Text(root->JsonValue()));
    EXPECT_EQ(0, VideoCodec(*reloaded)->IndexForQualityPresets());
    EXPECT_EQ(1, VideoCodec(*reloaded)->CodecQualityPresetAt(5)->Bitrate());
}

/// One of an older program: names and lists that are gone, members that are strange, most of them absent.
constexpr const char* kOld = R"({
    "version": 3,
    "childList": [
        {
            "expanded": true,
            "formatPresetList": [
                {
                    "formatName": "MPEG2",
                    "indexForVideoCodecPresets": 9,
                    "videoCodecPresets": [
                        {"codecID": 1, "name": "AVC", "levelPresets": [{"level": 31}],
                         "qualityPresets": [{"qualityValue": 2}], "indexForQualityPresets": 4}
                    ],
                    "maxVideoBitrate": 0
                }
            ],
            "name": "Discs"
        }
    ]
})";

TEST_F(Document, OfAnOlderProgramIsWrittenInFull)
{
    EXPECT_EQ(
        R"({"name":"","description":"","faceID":0,"formatPresetList":[],"childList":[)"
        R"({"name":"Discs","description":"","faceID":0,"formatPresetList":[)"
        R"({"name":"","description":"","formatName":"MPG","formatHint":"","faceID":0,)"
        R"("indexForVideoCodecPresets":0,"videoCodecPresets":[)"
        R"({"aspectPreset":{"num":0,"den":0,"type":0},"codecID":1,"name":"H.264","description":"",)"
        R"("indexForResolutionPreset":0,"resolutionPresets":[],)"
        R"("indexForFrameratePresets":0,"frameratePresets":[],"indexForQualityPresets":0,)"
        R"("indexForSampleratePresets":0,"sampleratePresets":[],)"
        R"("indexForChannelLayoutPresets":0,"channelLayoutPresets":[],)"
        R"("indexForProfilesPresets":0,"profilesPresets":[],"indexForLevelPresets":1,)"
        R"("levelPresets":[{"level":-99,"name":"Unknown"},{"level":31,"name":""}],"indexForSampleFmts":0}],)"
        R"("indexForAudioCodecPresets":-1,"audioCodecPresets":[],)"
        R"("maxWidth":0,"minWidth":0,"maxHeight":0,"minHeight":0,"maxVideoBitrate":0,)"
        R"("minVideoBitrate":-1,"maxAudioBitrate":-1,"minAudioBitrate":-1}],"childList":[]}]})",
        Text(Load(kOld)->JsonValue()));
}

} // namespace

} // namespace Vexlor
