#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXProfilePreset.h"
#include "IVXResolutionPreset.h"
#include "IVXSampleFmtPreset.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>
#include <utility>

namespace Vexlor
{

namespace
{

constexpr int kCodec = 7;

/// A preset whose lists nobody has changed yet.
class LoadedLists : public testing::Test
{
protected:
    LoadedLists()
    {
        m_platform.Codec(kCodec).formats = {0, 5};
        m_preset = IVXCodecPreset::MallocCodecPreset(Json(R"({"codecID": 7,
            "resolutionPresets": [{"width": 1}, {"width": 2}, {"width": 3}],
            "profilesPresets": [{"profile": 100, "name": "a name that is too long to lie in a string"}]})"));
    }

    ScriptedPlatform m_platform;
    std::shared_ptr<IVXCodecPreset> m_preset;
};

TEST_F(LoadedLists, HandOutTheSameEntryEachTime)
{
    EXPECT_EQ(m_preset->ResolutionPresetAt(1), m_preset->ResolutionPresetAt(1));
    EXPECT_EQ(m_preset->ResolutionPresets(), m_preset->ResolutionPresets());
    EXPECT_EQ(m_preset->ResolutionPresets()[2], std::as_const(*m_preset).ResolutionPresets()[2]);
    EXPECT_EQ(m_preset->SampleFmtPresetAt(1), m_preset->SampleFmtPresets()[1]);
    EXPECT_NE(m_preset->ResolutionPresetAt(0), m_preset->ResolutionPresetAt(1));
}

TEST_F(LoadedLists, KeepTheirEntriesWhenTheyChange)
{
    const auto before = m_preset->ResolutionPresets();
    m_preset->MoveResolutionPreset(0, 2);
    m_preset->AddResolutionPreset(4, 1);
    EXPECT_EQ(before[1], m_preset->ResolutionPresetAt(0));
    EXPECT_EQ(before[0], m_preset->ResolutionPresetAt(1));
    EXPECT_EQ(before[2], m_preset->ResolutionPresetAt(2));
    EXPECT_EQ(4, m_preset->ResolutionPresetAt(3)->Width());
}

TEST_F(LoadedLists, AreOutlivedByAnEntryInUse)
{
    const auto profile = m_preset->ProfilePresetAt(0);
    m_preset.reset();
    EXPECT_EQ("a name that is too long to lie in a string", profile->Name());
}

TEST_F(LoadedLists, ShowWhatIsSetOnAnEntry)
{
    m_preset->CodecQualityPresetAt(5)->SetBitrate(64000);
    EXPECT_EQ(64000, m_preset->CodecQualityPresetAt(5)->Bitrate());
    EXPECT_EQ(64000, m_preset->Clone()->CodecQualityPresetAt(5)->Bitrate());
}

TEST_F(LoadedLists, ShareNoEntryWithThoseOfAClone)
{
    const auto copy = m_preset->Clone();
    ASSERT_EQ(3, copy->ResolutionPresetCount());
    EXPECT_NE(copy->ResolutionPresetAt(0), m_preset->ResolutionPresetAt(0));
    EXPECT_EQ(Text(m_preset->JsonValue()), Text(copy->JsonValue()));
}

} // namespace

} // namespace Vexlor
