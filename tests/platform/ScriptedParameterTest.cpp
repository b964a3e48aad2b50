#include "IVXFormatParameter.h"
#include "IVXRational.h"

#include "tests/platform/ScriptedCall.h"
#include "tests/platform/ScriptedCodecParameter.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

TEST(ScriptedCodecParameter, RecordsItsSettersInOrder)
{
    const auto stream = MakeStream(7);
    stream->SetHeight(720);
    stream->SetFramePerSecond(IVXRational::MallocRational(30, 1));
    EXPECT_EQ("SetHeight(720)\nSetFramePerSecond(30/1)\n", stream->SettersText());
    EXPECT_EQ(720, stream->GetHeight());
    EXPECT_EQ("30/1", Text(stream->GetFrameRate()));
}

TEST(ScriptedCodecParameter, AnEmptyRationalChangesNothing)
{
    const auto stream = MakeStream(7);
    stream->SetAspectRatio({});
    EXPECT_EQ("1/1", Text(stream->GetAspectRatio()));
}

TEST(ScriptedCodecParameter, IsDisplayedAsStoredUnlessToldOtherwise)
{
    const auto stream = MakeStream(7);
    stream->SetWidth(720);
    EXPECT_EQ(720, stream->GetDisplayWidth());
    stream->SetDisplaySize(768, 576);
    EXPECT_EQ(768, stream->GetDisplayWidth());
    EXPECT_EQ(576, stream->GetDisplayHeight());
}

TEST(ScriptedCodecParameter, TakesItsTypeFromThePlatform)
{
    ScriptedPlatform platform;
    platform.Codec(7).type = VXCodecTypeAudio;
    EXPECT_EQ(VXCodecTypeAudio, MakeStream(7)->GetCodecType());
    EXPECT_EQ(VXCodecTypeUnknown, MakeStream(8)->GetCodecType());
}

TEST(ScriptedCodecParameter, MadeByTheLibraryItIsRecordedAndCanBeLookedInto)
{
    const ScriptedPlatform platform;
    const auto output = IVXCodecParameter::MallocCodecParamter(7);
    output->SetBitrate(1000);
    EXPECT_EQ("MallocCodecParamter(7)\n", platform.CallsText());
    EXPECT_EQ("SetBitrate(1000)\n", Scripted(output).SettersText());
}

TEST(ScriptedCodecParameter, TheFirstByteOfATagIsTheLowest)
{
    EXPECT_EQ(0x44434241U, IVXCodecParameter::MakeCodecTag('A', 'B', 'C', 'D'));
}

TEST(ScriptedFormatParameter, HoldsOneStreamOfEachKind)
{
    const ScriptedPlatform platform;
    const auto file = IVXFormatParameter::MallocFormatParameter("MP4", "m4v");
    const auto video = MakeStream(1);
    file->SetVideoCodecParameter(video);
    EXPECT_EQ(video, file->GetVideoCodecParameter());
    EXPECT_FALSE(file->GetAudioCodecParameter());
    EXPECT_EQ("MallocFormatParameter(\"MP4\", \"m4v\")\n", platform.CallsText());
}

} // namespace

} // namespace Vexlor
