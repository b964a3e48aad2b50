#include "runtime/mediacodecs/FormatTable.h"
#include "Columns.h"
#include "IVXFormat.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/Lookup.h"

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

TEST(FormatTable, NamesAreGivenOnce)
{
    EXPECT_EQ(FormatTable().size(), DifferentValues(FormatTable(), &FormatRow::name));
}

// A muxer that makes several containers is told by the ending which of them is meant.
TEST(FormatTable, NoEndingIsGivenTwice)
{
    std::multiset<std::string> endings;
    for (const auto& format : FormatTable())
        ForEachWord(format.endings, [&](std::string_view ending) { endings.emplace(ending); });
    EXPECT_EQ(endings.size(), std::set<std::string>(endings.begin(), endings.end()).size());
}

TEST(FormatTable, HasAllContainersThatPeopleConvertTo) { EXPECT_GE(FormatTable().size(), 30U); }

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

std::vector<int> WithEncoders(std::span<const int> codecs)
{
    std::vector<int> encodable;
    std::ranges::copy_if(codecs, std::back_inserter(encodable),
                         [](int id) { return !CapabilitiesOf(id)->encoders.empty(); });
    return encodable;
}

TEST(FormatTable, EveryListedCodecThatCanBeEncodedIsTakenByTheMuxer)
{
    for (const auto& format : FormatTable())
    {
        EXPECT_EQ(WithEncoders(format.videoCodecs), WritableCodecs(format, format.videoCodecs))
            << format.name;
        EXPECT_EQ(WithEncoders(format.audioCodecs), WritableCodecs(format, format.audioCodecs))
            << format.name;
    }
}

TEST(FormatTable, ACodecWithoutAnEncoderIsLeftOut)
{
    for (const auto& codec : CodecTable())
        if (CapabilitiesOf(codec.id)->encoders.empty())
        {
            EXPECT_THAT(WritableCodecs(*FindFormat("MKV"), std::array{codec.id}), IsEmpty()) << codec.name;
        }
}

TEST(FormatTable, EveryCodecHasAContainer)
{
    std::set<int> listed;
    for (const auto& format : FormatTable())
    {
        listed.insert(format.videoCodecs.begin(), format.videoCodecs.end());
        listed.insert(format.audioCodecs.begin(), format.audioCodecs.end());
    }
    for (const auto& codec : CodecTable())
        EXPECT_TRUE(listed.contains(codec.id)) << codec.name;
}

// Or a file that is written here would be read back as something else.
TEST(FormatTable, EveryMuxersFilesAreReadAsTheContainer)
{
    for (const auto& format : FormatTable())
    {
        const std::string path = "clip." + std::string(format.endings.substr(0, format.endings.find(' ')));
        EXPECT_EQ(format.name, NameOfFile(std::string(format.demuxer).c_str(), path));
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
                ElementsAre("MP4", "MOV", "MKV", "WEBM", "AVI", "MPG", "M4V", "VOB", "TS", "M2TS", "WMV",
                            "ASF", "FLV", "F4V", "3GP", "OGV", "MXF", "DV", "GIF", "WEBP", "MP3", "M4A",
                            "AAC", "WAV", "WMA", "FLAC", "OGG", "OPUS", "AC3", "AIFF", "CAF", "MKA"));
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
    {"Phone", "mov", "clip.3gp", "3GP"},
    {"OtherEnding", "mov", "clip.mj2", "MP4"},
    {"NoEnding", "mov", "/a.mov/clip", "MP4"},
    {"WrongEnding", "avi", "holiday.mp4", "AVI"},
    {"Webm", "webm", "clip.webm", "WEBM"},
    {"Mkv", "matroska", "clip.mkv", "MKV"},
    {"ProgramStream", "mpeg", "clip.mpeg", "MPG"},
    {"Disc", "mpeg", "VTS_01_1.VOB", "VOB"},
    {"Camera", "mpegts", "00001.MTS", "M2TS"},
    {"SoundOfMatroska", "matroska", "clip.mka", "MKA"},
    {"SoundOfWindows", "asf", "clip.wma", "WMA"},
    {"EmptyPath", "flac", "", "FLAC"},
    {"DotOnly", "ogg", ".", "OGV"},
    {"NotOurs", "voc", "sound.voc", ""},
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

TEST(Format, ListsWhatPlayersAcceptAlone)
{
    EXPECT_THAT(IVXFormat::MallocFormat("MP4", "")->VideoCodecIDs(), Not(Contains(VXCodecID_MPEG2)));
    EXPECT_THAT(IVXFormat::MallocFormat("MKV", "")->VideoCodecIDs(), Not(Contains(VXCodecID_DIVX)));
    EXPECT_THAT(IVXFormat::MallocFormat("M2TS", "")->AudioCodecIDs(), Not(Contains(VXCodecID_AAC)));
}

TEST(Format, OfSoundAloneHasNoVideoCodecs)
{
    for (const char* name :
         {"MP3", "M4A", "AAC", "WAV", "WMA", "FLAC", "OGG", "OPUS", "AC3", "AIFF", "CAF", "MKA"})
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
