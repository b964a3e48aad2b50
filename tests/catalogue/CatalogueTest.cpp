#include "IVXCodecPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXFrameratePreset.h"
#include "IVXJsonValue.h"
#include "IVXLevelPreset.h"
#include "IVXProfilePreset.h"
#include "IVXRational.h"
#include "IVXResolutionPreset.h"
#include "IVXSampleFmtPreset.h"
#include "IVXSampleratePreset.h"
#include "PresetPaths.h"
#include "Sources.h"
#include "catalog/DefaultTree.h"
#include "catalog/PresetBuilder.h"
#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXLogSink.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace Vexlor
{

namespace
{

using Catalog::Preset;

std::vector<Catalog::Group> Groups()
{
    std::vector<Catalog::Group> groups;
    for (const auto& part : {Catalog::GeneralGroups(), Catalog::VideoGroups(), Catalog::AudioGroups(),
                             Catalog::DeviceGroups(), Catalog::WebVideoGroups(), Catalog::UserGroups()})
        groups.insert(groups.end(), part.begin(), part.end());
    return groups;
}

/// The names of the source's presets of which that does not hold, a line each.
template <typename Holds>
std::string Breaking(Holds holds)
{
    std::string names;
    Catalog::PresetBuilder builder;
    for (const auto& group : Groups())
        for (const auto& row : group.presets)
            if (!holds(row, *builder.Build(row, group.offer)))
                names += std::string(row.name) + '\n';
    return names;
}

TEST(Catalogue, HasTheSevenCategories)
{
    std::vector<std::string> names;
    for (const auto& category : Catalog::DefaultTree()->GetChildList())
        names.push_back(category->Name());
    EXPECT_EQ((std::vector<std::string>{"General", "Video", "Audio", "Devices", "Web Video", "Customised",
                                        "Recently Used"}),
              names);
}

TEST(Catalogue, LeavesTheUsersCategoriesEmpty)
{
    const auto root = Catalog::DefaultTree();
    for (const auto* name : {"Customised", "Recently Used"})
    {
        EXPECT_EQ(0, root->FindChild(name)->FormatPresetCount());
        EXPECT_EQ(0, root->FindChild(name)->ChildCount());
    }
}

TEST(Catalogue, BeginsWithThePresetThatJustWorks)
{
    EXPECT_EQ("General/Just Works", DefaultPresets().front().path);
}

TEST(Catalogue, HoldsEveryPresetOfItsSource)
{
    std::size_t rows = 0;
    for (const auto& group : Groups())
        rows += group.presets.size();
    EXPECT_GE(rows, 120U);
    EXPECT_EQ(rows, DefaultPresets().size());
}

TEST(Catalogue, NamesNoPresetTwice)
{
    std::set<std::string> names;
    std::string twice;
    for (const auto& placed : DefaultPresets())
        if (!names.insert(placed.preset->Name()).second)
            twice += placed.path + '\n';
    EXPECT_EQ("", twice);
}

TEST(Catalogue, TellsOfEveryGroupAndPresetWhenToPickIt)
{
    for (const auto& group : Groups())
        EXPECT_NE("", group.description) << group.category << '/' << group.child;
    EXPECT_EQ("", Breaking([](const Preset& row, const auto&) { return row.when.size() > 10; }));
}

TEST(Catalogue, ReadsBackAsTheSameDocument)
{
    const auto text = JsonText(*Catalog::DefaultTree()->JsonValue());
    const auto again = JsonText(*IVXFormatNode::MallocFormatNode(ParseJson(text))->JsonValue());
    EXPECT_TRUE(text == again) << text.size() << " bytes became " << again.size();
}

bool IsKnownFace(int faceID)
{
    return std::ranges::find(Catalog::kFaces, faceID, &Catalog::Face::id) != Catalog::kFaces.end();
}

TEST(Catalogue, HasAnIconForEveryGroupAndPreset)
{
    for (const auto& group : Groups())
        EXPECT_TRUE(IsKnownFace(group.faceID)) << group.category << '/' << group.child;
    EXPECT_EQ("", Breaking([](const Preset& row, const auto&) { return IsKnownFace(row.container.faceID); }));
}

// A misspelt name would leave the choice to the encoder.
TEST(Catalogue, ChoosesTheProfilesLevelsAndFormatsThatTheSourceNames)
{
    EXPECT_EQ("", Breaking(
                      [](const Preset& row, const IVXFormatPreset& preset)
                      {
                          const auto codec = preset.CurrentVideoCodec();
                          const auto& picture = row.picture;
                          return (picture.profile.empty() ||
                                  codec->CurrentPrefile()->Name() == picture.profile) &&
                                 (picture.level.empty() || codec->CurrentLevel()->Name() == picture.level) &&
                                 (picture.format.empty() ||
                                  codec->CurrentSampleFmt()->FormatSampleFmt() == picture.format);
                      }));
}

TEST(Catalogue, ChoosesTheSizesAndFrameRatesOfTheSource)
{
    EXPECT_EQ("", Breaking(
                      [](const Preset& row, const IVXFormatPreset& preset)
                      {
                          const auto codec = preset.CurrentVideoCodec();
                          const auto& picture = row.picture;
                          return (picture.size.width == 0 ||
                                  (codec->CurrentResolution()->Width() == picture.size.width &&
                                   codec->CurrentResolution()->Height() == picture.size.height)) &&
                                 (picture.rateNum == 0 ||
                                  (codec->CurrentFramerate()->Framerate()->Num() == picture.rateNum &&
                                   codec->CurrentFramerate()->Framerate()->Den() == picture.rateDen));
                      }));
}

TEST(Catalogue, ChoosesTheSoundOfTheSource)
{
    EXPECT_EQ("", Breaking(
                      [](const Preset& row, const IVXFormatPreset& preset)
                      {
                          const auto codec = preset.CurrentAudioCodec();
                          return (row.sound.codec == VXCodecID_None) == !codec &&
                                 (row.sound.rate == 0 ||
                                  codec->CurrentSamplerate()->Samplerate() == row.sound.rate) &&
                                 (row.sound.format.empty() ||
                                  codec->CurrentSampleFmt()->FormatSampleFmt() == row.sound.format);
                      }));
}

TEST(Catalogue, ChoosesTheCodecsOfTheSource)
{
    EXPECT_EQ("", Breaking(
                      [](const Preset& row, const IVXFormatPreset& preset)
                      {
                          const auto video = preset.CurrentVideoCodec();
                          const auto audio = preset.CurrentAudioCodec();
                          return (video ? video->CodecID() : VXCodecID_None) == row.picture.codec &&
                                 (audio ? audio->CodecID() : VXCodecID_None) == row.sound.codec;
                      }));
}

// A fast source would break the level.
TEST(Catalogue, FixesALevelBesideAFrameRateOnly)
{
    EXPECT_EQ("", Breaking([](const Preset& row, const auto&)
                           { return row.picture.level.empty() || row.picture.rateNum > 0; }));
}

// Matching asks for the bitrate before it bounds the size.
TEST(Catalogue, BoundsTheBitrateWhereItBoundsTheSize)
{
    EXPECT_EQ("", Breaking(
                      [](const Preset& row, const auto&)
                      {
                          const auto& picture = row.picture;
                          const bool isFixed = picture.size.width > 0;
                          return isFixed || picture.most.width == 0 || picture.kilobits.least > 0;
                      }));
}

TEST(Catalogue, OffersDevicesTheChosenCodecsAlone)
{
    for (const auto& placed : DefaultPresets())
        if (placed.category == "Devices" || placed.category == "Web Video")
        {
            EXPECT_LE(placed.preset->VideoCodecPresetCount(), 1) << placed.path;
            EXPECT_LE(placed.preset->AudioCodecPresetCount(), 1) << placed.path;
        }
}

bool OffersLarger(const IVXCodecPreset& codec, const IVXFormatPreset& preset)
{
    return std::ranges::any_of(
        codec.ResolutionPresets(), [&](const auto& size)
        { return size->Width() > preset.MaxWidth() || size->Height() > preset.MaxHeight(); });
}

TEST(Catalogue, OffersNoSizeBeyondTheBounds)
{
    EXPECT_EQ("", Breaking(
                      [](const Preset&, const IVXFormatPreset& preset) {
                          return preset.MaxWidth() == 0 || !OffersLarger(*preset.CurrentVideoCodec(), preset);
                      }));
}

// Bounds that contradict each other, or a codec without a bitrate, would be logged.
TEST(Catalogue, MatchesEverySourceWithoutAComplaint)
{
    std::string log;
    const auto before = SetLogSink([&log](IVXLogConfig::LogLevel, std::string_view text) { log += text; });
    for (const auto& placed : DefaultPresets())
        for (const auto& source : Sources())
            placed.preset->MatchForSource(ParameterOf(source));
    SetLogSink(before);
    EXPECT_EQ("", log);
}

} // namespace

} // namespace Vexlor
