#include "runtime/mediacodecs/VXMediaFile.h"

#include "tests/media/Ffmpeg.h"
#include "tests/media/MediaMaker.h"

#include <gmock/gmock.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <limits>

namespace Vexlor
{

namespace
{

using testing::EndsWith;
using testing::HasSubstr;

constexpr std::uint32_t kMillions = 80'000'000;

std::string Number(std::uint32_t number)
{
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(number >> shift & 0xFF));
    return bytes;
}

std::string Box(const std::string& type, const std::string& content)
{
    return Number(static_cast<std::uint32_t>(8 + content.size())) + type + content;
}

std::string Table(const std::string& type, std::initializer_list<std::uint32_t> numbers)
{
    std::string content;
    for (const auto number : numbers)
        content += Number(number);
    return Box(type, content);
}

// A file of so many tracks, each of which has these tables.
std::string Movie(const std::string& tables, const std::string& movie = "moov", int tracks = 1)
{
    auto content = Box("mvhd", std::string(100, '\0'));
    for (int track = 0; track < tracks; ++track)
        content += Box("trak", Box("mdia", Box("minf", Box("stbl", tables))));
    return Box("ftyp", "isom" + Number(512) + "isom") + Box(movie, content);
}

std::string ErrorOf(const std::string& bytes, const VXMediaFileLimits& limits = {})
{
    const Media::ScratchFolder scratch;
    return ReadMediaFile(scratch.Write("clip.mp4", bytes), limits).error;
}

TEST(MediaFileHostile, SamplesThatTakeNoBytes)
{
    EXPECT_THAT(ErrorOf(Movie(Table("stsz", {0, 1, kMillions}))),
                EndsWith("is damaged (it tells of 80000000 samples in 188 bytes)"));
}

TEST(MediaFileHostile, SamplesThatTakeNoBytesInAHidingPlace)
{
    EXPECT_THAT(ErrorOf(Movie(Table("stsz", {0, 1, kMillions}), "free")),
                HasSubstr("tells of 80000000 samples"));
}

TEST(MediaFileHostile, SamplesThatTakeNoBytesBehindABrokenBox)
{
    const auto broken = Number(3) + "none";
    EXPECT_THAT(ErrorOf(Movie(Box("udta", broken) + Table("stsz", {0, 1, kMillions}))),
                HasSubstr("tells of 80000000 samples"));
}

TEST(MediaFileHostile, ChunksOfMoreSamplesThanBytes)
{
    const auto tables = Table("stsc", {0, 1, 1, 0x7FFFFFFF, 1}) + Table("stco", {0, 64});
    EXPECT_THAT(ErrorOf(Movie(tables)), HasSubstr("tells of 134217664 samples"));
}

TEST(MediaFileHostile, TracksOfMoreSamplesThanCanBeCounted)
{
    constexpr std::uint32_t kMost = 0xFFFFFFFF;
    const auto tables = Table("stsc", {0, 1, 1, kMost, 1}) + Table("stco", {0, kMost});
    EXPECT_THAT(ErrorOf(Movie(tables, "moov", 600)), HasSubstr("tells of 4611686018427387904 samples"));
}

TEST(MediaFileHostile, FragmentOfMoreSamplesThanBytes)
{
    const auto fragment = Box("moof", Box("traf", Table("trun", {0, kMillions})));
    EXPECT_THAT(ErrorOf(Movie("") + fragment), HasSubstr("tells of 80000000 samples"));
}

TEST(MediaFileHostile, CompressedDescription)
{
    EXPECT_THAT(ErrorOf(Box("ftyp", "qt  " + Number(0)) + Box("moov", Box("cmov", ""))),
                EndsWith("has a compressed description, which is not read"));
}

TEST(MediaFileHostile, MoreStreamsThanTheLimit)
{
    EXPECT_THAT(ErrorOf(Media::BytesOf(Media::Clip("film.mp4")), {.streams = 1}),
                EndsWith("is damaged (it asks for more streams or memory than a media file may have)"));
}

TEST(MediaFileHostile, TimeIsOver)
{
    EXPECT_THAT(ErrorOf(Media::BytesOf(Media::Clip("streamed.mp4")), {.seconds = 0}),
                EndsWith("takes too long to read (more than 0 seconds)"));
}

TEST(MediaFileHostile, TimeWithoutEndIsAsLongAsTimeCanBe)
{
    const auto clip = Media::BytesOf(Media::Clip("streamed.mp4"));
    for (const double seconds : {1e18, std::numeric_limits<double>::infinity()})
        EXPECT_EQ("", ErrorOf(clip, {.seconds = seconds})) << seconds;
}

TEST(MediaFileHostile, TimeThatIsNoneIsOverAtOnce)
{
    const auto clip = Media::BytesOf(Media::Clip("streamed.mp4"));
    for (const double seconds : {-1.0, -1e300, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_THAT(ErrorOf(clip, {.seconds = seconds}), HasSubstr("takes too long to read")) << seconds;
}

TEST(MediaFileHostile, MoreBytesThanTheLimit)
{
    EXPECT_THAT(ErrorOf(Media::BytesOf(Media::Clip("film.mkv")), {.bytes = 100}),
                EndsWith("is damaged or cut off (its description has no end)"));
}

/// A picture just beyond the usual limit, in a container that tells of its streams at once, and in some whose
/// streams show when their first packet comes.
class LargePicture : public testing::TestWithParam<const char*>
{
protected:
    LargePicture() : m_path(m_scratch.Path(std::string("large.") + GetParam()))
    {
        Media::RunFfmpeg("-f lavfi -i color=size=8200x8200:rate=1:duration=1 -c:v libx264 -preset ultrafast "
                         "-f " +
                             std::string(GetParam()),
                         m_path);
    }

    // In another process, since what one has needed at most never falls.
    long MegabytesToRead(const VXMediaFileLimits& limits) const
    {
        const auto child = ::fork();
        if (child == 0)
            ::_exit(ReadMediaFile(m_path, limits).parameter ? 0 : 1);
        int status = 0;
        rusage usage{};
        EXPECT_EQ(child, ::wait4(child, &status, 0, &usage));
        EXPECT_EQ(0, status);
        return usage.ru_maxrss / 1024;
    }

    const Media::ScratchFolder m_scratch;
    std::string m_path;
};

TEST_P(LargePicture, CostsNoFrame)
{
    constexpr long kFrame = 8200 * 8200 * 3 / 2 >> 20;
    const auto whole = MegabytesToRead({.pixels = 1 << 30});
    EXPECT_LT(MegabytesToRead({}) + kFrame / 2, whole);
}

INSTANTIATE_TEST_SUITE_P(Muxers, LargePicture, testing::Values("mp4", "mpegts", "flv"),
                         [](const auto& test) { return std::string(test.param); });

} // namespace

} // namespace Vexlor
