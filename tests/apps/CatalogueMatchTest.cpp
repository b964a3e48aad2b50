#include "apps/host/match/CatalogueMatch.h"

#include "apps/host/Text.h"
#include "tests/apps/Sources.h"

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "IVXResolutionPreset.h"

#include <gtest/gtest.h>

#include <chrono>

namespace Vexlor::Tool
{

namespace
{

using Apps::AudioSource;
using Apps::FileOf;
using Apps::VideoSource;

using Preset = std::shared_ptr<IVXFormatPreset>;

/// A preset of the container with those codecs alone; 0 for none.
Preset PresetOf(const char* container, int videoCodec, int audioCodec)
{
    auto preset = IVXFormatPreset::MallocFormatPreset(container, "");
    while (preset->VideoCodecPresetCount() > 0)
        preset->RemoveVideoCodecPreset(0);
    while (preset->AudioCodecPresetCount() > 0)
        preset->RemoveAudioCodecPreset(0);
    if (videoCodec != 0)
        preset->AddVideoCodecPreset(videoCodec);
    if (audioCodec != 0)
        preset->AddAudioCodecPreset(audioCodec);
    return preset;
}

Preset SmallPreset()
{
    auto preset = PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC);
    preset->SetMaxWidth(640);
    preset->SetMaxHeight(360);
    return preset;
}

VXMediaFile Film()
{
    VXMediaFile media;
    media.parameter = FileOf(VideoSource{}, AudioSource{});
    media.videoCodec = "H.264";
    media.audioCodec = "AAC";
    return media;
}

/// "path fit: texts" of each match, a line each.
std::string Ranked(const VXMediaFile& media, const std::vector<Preset>& presets)
{
    Catalogue catalogue;
    for (std::size_t i = 0; i < presets.size(); ++i)
        catalogue.entries.push_back({std::to_string(i), std::to_string(i), presets[i]});
    std::string text;
    for (const auto& match : MatchCatalogue(media, catalogue))
        text += match.entry->path + ' ' + FitName(match.fit) + ": " + Joined(match.texts, ", ") + '\n';
    return text;
}

TEST(MatchCatalogue, LeavesUntouchedWhatIsTheSame)
{
    EXPECT_EQ("0 untouched: \n", Ranked(Film(), {PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC)}));
}

TEST(MatchCatalogue, TellsWhatChanges)
{
    EXPECT_EQ("0 changed: H.264 to VP9, AAC to Opus\n",
              Ranked(Film(), {PresetOf("WEBM", VXCodecID_VP9, VXCodecID_Opus)}));
    EXPECT_EQ("0 changed: 1920 x 1080 to 640 x 360\n", Ranked(Film(), {SmallPreset()}));
}

TEST(MatchCatalogue, TellsOfSoundThatChanges)
{
    auto media = Film();
    media.parameter = FileOf(AudioSource{.sampleRate = 44'100, .layout = 0x3F});
    EXPECT_EQ("0 changed: AAC to Opus, 44.1 kHz to 48 kHz\n",
              Ranked(media, {PresetOf("WEBM", VXCodecID_VP9, VXCodecID_Opus)}));
    EXPECT_EQ("0 changed: AAC to MP3, 5.1 to Stereo\n", Ranked(media, {PresetOf("MP4", 0, VXCodecID_MP3)}));
}

TEST(MatchCatalogue, TellsOfAStreamThatIsLeftOut)
{
    EXPECT_EQ("0 changed: no video\n", Ranked(Film(), {PresetOf("MP4", 0, VXCodecID_AAC)}));
}

TEST(MatchCatalogue, TellsWhyNothingComesOut)
{
    EXPECT_EQ("0 impossible: nothing of the source is left\n", Ranked(Film(), {PresetOf("MP4", 0, 0)}));
    EXPECT_EQ("0 impossible: codec 999 is not known\n",
              Ranked(Film(), {PresetOf("MP4", 999, VXCodecID_AAC)}));
}

TEST(MatchCatalogue, TellsOfAContainerThatIsNotKnown)
{
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("formatName", "XYZ");
    EXPECT_EQ("0 impossible: the container \"XYZ\" cannot be written here, nothing of the source is left\n",
              Ranked(Film(), {IVXFormatPreset::MallocFormatPreset(json)}));
}

TEST(MatchCatalogue, RanksByWhatIsLost)
{
    EXPECT_EQ("4 untouched: \n"
              "2 changed: H.264 to HEVC\n"
              "3 changed: 1920 x 1080 to 640 x 360\n"
              "1 changed: no video\n"
              "0 impossible: nothing of the source is left\n",
              Ranked(Film(), {PresetOf("MP4", 0, 0), PresetOf("MP4", 0, VXCodecID_AAC),
                              PresetOf("MP4", VXCodecID_HEVC, VXCodecID_AAC), SmallPreset(),
                              PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC)}));
}

TEST(MatchCatalogue, KeepsTheCataloguesOrderAmongEquals)
{
    const auto same = PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC);
    EXPECT_EQ("0 untouched: \n1 untouched: \n", Ranked(Film(), {same, same}));
}

TEST(MatchCatalogue, TakesLessThanASecondForTheBuiltInOne)
{
    const auto catalogue = LoadCatalogue({});
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(catalogue.entries.size(), MatchCatalogue(Film(), catalogue).size());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

} // namespace

} // namespace Vexlor::Tool
