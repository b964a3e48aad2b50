#include "runtime/mediacodecs/ChannelLayouts.h"
#include "Columns.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecTable.h"

#include <gtest/gtest.h>

extern "C"
{
#include <libavutil/channel_layout.h>
}

namespace Vexlor
{

namespace
{

TEST(ChannelLayouts, MasksAreGivenOnce)
{
    EXPECT_EQ(ChannelLayoutTable().size(), DifferentValues(ChannelLayoutTable(), &ChannelLayoutRow::mask));
}

TEST(ChannelLayouts, ThoseOfOneCodecAreToldApartByTheirNames)
{
    for (const auto& codec : CodecTable())
    {
        std::set<std::string> names;
        for (const auto layout : codec.audio.layouts)
            EXPECT_TRUE(names.insert(VXChannelLayoutName(layout)).second)
                << codec.name << ' ' << VXChannelLayoutName(layout);
    }
}

TEST(ChannelLayouts, MasksAreTheOnesOfLibavutil)
{
    EXPECT_EQ(AV_CH_LAYOUT_STEREO, kStereo);
    EXPECT_EQ(AV_CH_LAYOUT_5POINT1_BACK, kLayout51);
    EXPECT_EQ(AV_CH_LAYOUT_5POINT1, kLayout51Side);
    EXPECT_EQ(AV_CH_LAYOUT_6POINT1, kLayout61);
    EXPECT_EQ(AV_CH_LAYOUT_7POINT1, kLayout71);
    EXPECT_EQ(AV_CH_LAYOUT_7POINT1_WIDE_BACK, kLayout71Wide);
}

TEST(ChannelLayouts, NamesAreAsPeopleWriteThem)
{
    EXPECT_EQ("Mono", VXChannelLayoutName(kMono));
    EXPECT_EQ("Stereo", VXChannelLayoutName(kStereo));
    EXPECT_EQ("5.1", VXChannelLayoutName(kLayout51));
    EXPECT_EQ("5.1", VXChannelLayoutName(kLayout51Side)); // AC-3's
    EXPECT_EQ("7.1", VXChannelLayoutName(kLayout71));
}

TEST(ChannelLayouts, AMaskWithoutANameIsNamedByItsChannels)
{
    EXPECT_EQ("1 channel", VXChannelLayoutName(kLowFrequency));
    EXPECT_EQ("64 channels", VXChannelLayoutName(~0ULL));
    EXPECT_EQ("0 channels", VXChannelLayoutName(0));
}

} // namespace

} // namespace Vexlor
