#include "IVXArtworkImageGroup.h"
#include "IVXArtworkImageMgr.h"

#include "tests/platform/Slots.h"

#include <QIcon>

#include <gtest/gtest.h>

#include <array>

namespace Vexlor
{

namespace
{

using Group = std::shared_ptr<IVXArtworkImageGroup>;

TEST(ArtworkImageGroup, SlotsStandInTheirOrder)
{
    EXPECT_EQ(EverySlot(6),
              SlotsOf(&IVXArtworkImageGroup::SetArtworkImage, &IVXArtworkImageGroup::GetArtworkImage,
                      &IVXArtworkImageGroup::ToData, &IVXArtworkImageGroup::FromData,
                      &IVXArtworkImageGroup::IsEmpty, &IVXArtworkImageGroup::ToIcon));
}

TEST(ArtworkImageMgr, SlotsStandInTheirOrder)
{
    using Mgr = IVXArtworkImageMgr;
    EXPECT_EQ(EverySlot(10), SlotsOf(&Mgr::GetArtworkImageGroupByID, &Mgr::ArtworkImageGroupCount,
                                     &Mgr::GetArtworkImageGroup, &Mgr::FaceIDAt,
                                     static_cast<int (Mgr::*)(Group)>(&Mgr::AddArtworkImageGroup),
                                     &Mgr::ReplaceArtworkImageGroup, &Mgr::RemoveArtworkImageGroupByID,
                                     &Mgr::RemoveArtworkImageGroup, &Mgr::GetArtworkImageGroupReserved,
                                     static_cast<int (Mgr::*)(Group, int)>(&Mgr::AddArtworkImageGroup)));
}

struct ConstantCase
{
    const char* name;
    int constant;
    int value;
};

class ArtworkFaceID : public testing::TestWithParam<ConstantCase>
{
};

TEST_P(ArtworkFaceID, IsFixed) { EXPECT_EQ(GetParam().value, GetParam().constant); }

constexpr std::array kFaceIDs{
    ConstantCase{"Customize", IVXArtworkImageMgr::CategoryFaceIDCustomize, 10000000},
    ConstantCase{"RecentList", IVXArtworkImageMgr::CategoryFaceIDRecentList, 10000001},
    ConstantCase{"General", IVXArtworkImageMgr::CategoryFaceIDGeneral, 10000002},
    ConstantCase{"Video", IVXArtworkImageMgr::CategoryFaceIDVideo, 10000003},
    ConstantCase{"Audio", IVXArtworkImageMgr::CategoryFaceIDAudio, 10000004},
    ConstantCase{"Device", IVXArtworkImageMgr::CategoryFaceIDDevice, 10000005},
    ConstantCase{"WebVideo", IVXArtworkImageMgr::CategoryFaceIDWebVideo, 10000006},
    ConstantCase{"MP4", IVXArtworkImageMgr::FormatFaceIDMP4, 20000000},
    ConstantCase{"AVI", IVXArtworkImageMgr::FormatFaceIDAVI, 20000001},
    ConstantCase{"WEBM", IVXArtworkImageMgr::FormatFaceIDWEBM, 20000002},
    ConstantCase{"MKV", IVXArtworkImageMgr::FormatFaceIDMKV, 20000003},
    ConstantCase{"MP3", IVXArtworkImageMgr::FormatFaceIDMP3, 20001000},
    ConstantCase{"M4A", IVXArtworkImageMgr::FormatFaceIDM4A, 20001001},
    ConstantCase{"WAV", IVXArtworkImageMgr::FormatFaceIDWAV, 20001002},
    ConstantCase{"WMA", IVXArtworkImageMgr::FormatFaceIDWMA, 20001003},
};
INSTANTIATE_TEST_SUITE_P(Constants, ArtworkFaceID, testing::ValuesIn(kFaceIDs),
                         [](const auto& test) { return test.param.name; });

} // namespace

} // namespace Vexlor
