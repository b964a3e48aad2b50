#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "VXMediaCodecs.h"

#include <gtest/gtest.h>

#include <utility>

namespace Vexlor
{

namespace
{

TEST(FormatParameter, KeepsItsNamesAndStartsWithoutStreams)
{
    const auto file = IVXFormatParameter::MallocFormatParameter("MP4", "m4v");
    EXPECT_EQ("MP4", file->FormatName());
    EXPECT_EQ("m4v", file->FormatHint());
    EXPECT_EQ(nullptr, file->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, file->GetAudioCodecParameter());
}

TEST(FormatParameter, SharesItsStreamsInBothForms)
{
    const auto file = IVXFormatParameter::MallocFormatParameter("MP4", "");
    const auto video = IVXCodecParameter::MallocCodecParamter(VXCodecID_H264);
    const auto audio = IVXCodecParameter::MallocCodecParamter(VXCodecID_AAC);
    file->SetVideoCodecParameter(video);
    file->SetAudioCodecParameter(audio);
    EXPECT_EQ(video, file->GetVideoCodecParameter());
    EXPECT_EQ(audio, file->GetAudioCodecParameter());
    EXPECT_EQ(video, std::as_const(*file).GetVideoCodecParameter());
    EXPECT_EQ(audio, std::as_const(*file).GetAudioCodecParameter());
}

TEST(FormatParameter, AnEmptyHandleRemovesAStream)
{
    const auto file = IVXFormatParameter::MallocFormatParameter("MP4", "");
    file->SetVideoCodecParameter(IVXCodecParameter::MallocCodecParamter(VXCodecID_H264));
    file->SetVideoCodecParameter(nullptr);
    EXPECT_EQ(nullptr, file->GetVideoCodecParameter());
}

} // namespace

} // namespace Vexlor
