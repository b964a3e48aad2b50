#include "IVXArtworkImageGroup.h"
#include "IVXArtworkImageMgr.h"

#include "tests/platform/Slots.h"

#include <QIcon>

#include <gtest/gtest.h>

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

constexpr ConstantCase kFaceIDs[] = {
    {"Customize", IVXArtworkImageMgr::CategoryFaceIDCustomize, 10000000},
    {"RecentList", IVXArtworkImageMgr::CategoryFaceIDRecentList, 10000001},
    {"General", IVXArtworkImageMgr::CategoryFaceIDGeneral, 10000002},
    {"Video", IVXArtworkImageMgr::CategoryFaceIDVideo, 10000003},
    {"Audio", IVXArtworkImageMgr::CategoryFaceIDAudio, 10000004},
    {"Device", IVXArtworkImageMgr::CategoryFaceIDDevice, 10000005},
    {"WebVideo", IVXArtworkImageMgr::CategoryFaceIDWebVideo, 10000006},
    {"MP4", IVXArtworkImageMgr::FormatFaceIDMP4, 20000000},
    {"AVI", IVXArtworkImageMgr::FormatFaceIDAVI, 20000001},
    {"WEBM", IVXArtworkImageMgr::FormatFaceIDWEBM, 20000002},
    {"MKV", IVXArtworkImageMgr::FormatFaceIDMKV, 20000003},
    {"MP3", IVXArtworkImageMgr::FormatFaceIDMP3, 20001000},
    {"M4A", IVXArtworkImageMgr::FormatFaceIDM4A, 20001001},
    {"WAV", IVXArtworkImageMgr::FormatFaceIDWAV, 20001002},
    {"WMA", IVXArtworkImageMgr::FormatFaceIDWMA, 20001003},
};
INSTANTIATE_TEST_SUITE_P(Constants, ArtworkFaceID, testing::ValuesIn(kFaceIDs),
                         [](const auto& test) { return test.param.name; });

} // namespace

} // namespace Vexlor
