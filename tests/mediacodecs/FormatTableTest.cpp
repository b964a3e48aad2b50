#include "runtime/mediacodecs/FormatTable.h"
#include "Columns.h"
#include "IVXFormat.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecTable.h"

#include <gmock/gmock.h>

#include <array>

extern "C"
{
#include <libavformat/avformat.h>
}

namespace Vexlor
{

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

std::string NameOfFile(const char* demuxer, std::string_view path)
{
    const auto* found = av_find_input_format(demuxer);
    return found ? FormatNameOf(*found, path) : "no such demuxer";
}

TEST(FormatTable, NamesAndMuxersAreGivenOnce)
{
    EXPECT_EQ(FormatTable().size(), DifferentValues(FormatTable(), &FormatRow::name));
    EXPECT_EQ(FormatTable().size(), DifferentValues(FormatTable(), &FormatRow::muxer));
}

TEST(FormatTable, EveryRowIsReadByADemuxerAndHasAnEnding)
{
    for (const auto& format : FormatTable())
    {
        EXPECT_NE(nullptr, av_find_input_format(std::string(format.demuxer).c_str())) << format.name;
        EXPECT_FALSE(format.endings.empty()) << format.name;
    }
}

TEST(FormatTable, CodecsAreOfTheirKindAndListedOnce)
{
    for (const auto& format : FormatTable())
    {
        for (const int id : format.videoCodecs)
            EXPECT_EQ(VXCodecTypeVideo, FindCodec(id)->type) << format.name << ' ' << id;
        for (const int id : format.audioCodecs)
            EXPECT_EQ(VXCodecTypeAudio, FindCodec(id)->type) << format.name << ' ' << id;
        EXPECT_EQ(format.videoCodecs.size(),
                  std::set(format.videoCodecs.begin(), format.videoCodecs.end()).size());
        EXPECT_EQ(format.audioCodecs.size(),
                  std::set(format.audioCodecs.begin(), format.audioCodecs.end()).size());
    }
}

TEST(FormatTable, EveryListedCodecIsTakenByTheMuxer)
{
    for (const auto& format : FormatTable())
    {
        EXPECT_EQ(format.videoCodecs.size(), WritableCodecs(format, format.videoCodecs).size())
            << format.name;
        EXPECT_EQ(format.audioCodecs.size(), WritableCodecs(format, format.audioCodecs).size())
            << format.name;
    }
}

TEST(FormatTable, AMuxerThatIsNotHereIsNotListedAndTakesNothing)
{
    constexpr std::array kCodecs{VXCodecID_H264};
    const FormatRow lost{"LOST", "no such muxer", "", "", kCodecs, {}};
    EXPECT_THAT(WritableCodecs(lost, lost.videoCodecs), IsEmpty());
}

TEST(FormatTable, ACodecThatTheMuxerRefusesIsLeftOut)
{
    constexpr std::array kCodecs{VXCodecID_H264, VXCodecID_VP9};
    EXPECT_THAT(WritableCodecs(*FindFormat("WEBM"), kCodecs), ElementsAre(VXCodecID_VP9));
}

TEST(FormatTable, WritableFormatsStandInTheTablesOrder)
{
    EXPECT_THAT(VXMediaCodecSupportOutputAllMediaFormats(),
                ElementsAre("MP4", "MOV", "MKV", "WEBM", "AVI", "MPG", "MP3", "M4A", "WAV", "FLAC", "OGG"));
}

struct FileName
{
    const char* name;
    const char* demuxer;
    const char* path;
    const char* format;
};

class NameOfAFile : public testing::TestWithParam<FileName>
{
};

TEST_P(NameOfAFile, FollowsDemuxerAndEnding)
{
    EXPECT_EQ(GetParam().format, NameOfFile(GetParam().demuxer, GetParam().path));
}

constexpr auto kFileNames = std::to_array<FileName>({
    {"Mp4", "mp4", "holiday.mp4", "MP4"},
    {"Mov", "mp4", "/clips/holiday.mov", "MOV"},
    {"Capitals", "mov", "HOLIDAY.MOV", "MOV"},
    {"M4a", "mov", "song.m4a", "M4A"},
    {"OtherEnding", "mov", "clip.3gp", "MP4"},
    {"NoEnding", "mov", "/a.mov/clip", "MP4"},
    {"WrongEnding", "avi", "holiday.mp4", "AVI"},
    {"Webm", "webm", "clip.webm", "WEBM"},
    {"Mkv", "matroska", "clip.mkv", "MKV"},
    {"ProgramStream", "mpeg", "clip.vob", "MPG"},
    {"EmptyPath", "flac", "", "FLAC"},
    {"DotOnly", "ogg", ".", "OGG"},
    {"NotOurs", "aiff", "sound.aiff", ""},
});
INSTANTIATE_TEST_SUITE_P(Files, NameOfAFile, testing::ValuesIn(kFileNames),
                         [](const auto& test) { return test.param.name; });

TEST(Format, ListsWhatAKnowingUserPicksFirst)
{
    const auto mp4 = IVXFormat::MallocFormat("MP4", "");
    ASSERT_THAT(mp4->VideoCodecIDs(), Not(IsEmpty()));
    EXPECT_EQ(VXCodecID_H264, mp4->VideoCodecIDs().front());
    EXPECT_EQ(VXCodecID_AAC, mp4->AudioCodecIDs().front());
    EXPECT_THAT(mp4->VideoCodecIDs(), Contains(VXCodecID_HEVC));
}

TEST(Format, OfSoundAloneHasNoVideoCodecs)
{
    for (const char* name : {"MP3", "M4A", "WAV", "FLAC", "OGG"})
    {
        EXPECT_THAT(IVXFormat::MallocFormat(name, "")->VideoCodecIDs(), IsEmpty()) << name;
        EXPECT_THAT(IVXFormat::MallocFormat(name, "")->AudioCodecIDs(), Not(IsEmpty())) << name;
    }
}

TEST(Format, AnUnknownNameIsAContainerWithoutCodecs)
{
    const auto unknown = IVXFormat::MallocFormat("mp4", "mp4"); // names are written as they are listed
    ASSERT_NE(nullptr, unknown);
    EXPECT_THAT(unknown->VideoCodecIDs(), IsEmpty());
    EXPECT_THAT(unknown->AudioCodecIDs(), IsEmpty());
}

TEST(Format, IsANewObjectEachTime)
{
    EXPECT_NE(IVXFormat::MallocFormat("MP4", ""), IVXFormat::MallocFormat("MP4", ""));
}

} // namespace

} // namespace Vexlor
