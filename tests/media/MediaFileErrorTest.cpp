#include "runtime/mediacodecs/VXMediaFile.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "tests/media/MediaMaker.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>

namespace Vexlor
{

namespace
{

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kUnknown = "is not a media file of a known kind";
constexpr const char* kMissing = "there is no such file";
constexpr const char* kDamaged = "is damaged or cut off (";

// What follows "path: " in the complaint about a file that must not be read.
std::string ReasonFor(const std::string& path)
{
    const auto file = ReadMediaFile(path);
    EXPECT_EQ(nullptr, file.parameter);
    EXPECT_THAT(file.error, StartsWith(path + ": "));
    return file.error.substr(std::min(file.error.size(), path.size() + 2));
}

std::string ReasonForBytes(std::string_view bytes)
{
    const Media::ScratchFolder scratch;
    return ReasonFor(scratch.Write("clip.mp4", bytes));
}

std::string StartOf(const std::string& clip, double part)
{
    const auto bytes = Media::BytesOf(Media::Clip(clip));
    return bytes.substr(0, static_cast<std::size_t>(static_cast<double>(bytes.size()) * part));
}

int WidthOf(const std::string& bytes)
{
    const Media::ScratchFolder scratch;
    const auto file = ReadMediaFile(scratch.Write("clip", bytes));
    return file.parameter ? file.parameter->GetVideoCodecParameter()->GetWidth() : -1;
}

// The superuser may read everything, so the test gives that up for a while.
class WithoutPrivileges final
{
public:
    WithoutPrivileges() : m_user(::geteuid())
    {
        if (m_user == 0 && ::seteuid(65534) != 0)
            ADD_FAILURE() << "cannot become another user";
    }
    ~WithoutPrivileges()
    {
        if (m_user == 0 && ::seteuid(0) != 0)
            ADD_FAILURE() << "cannot become the superuser again";
    }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

private:
    uid_t m_user;
};

TEST(MediaFileError, MissingFile) { EXPECT_EQ(kMissing, ReasonFor("/no/such/clip.mp4")); }

TEST(MediaFileError, EmptyPath) { EXPECT_EQ(kMissing, ReasonFor("")); }

TEST(MediaFileError, PathWithAZeroByte)
{
    EXPECT_EQ(kMissing, ReasonFor(Media::Clip("silent.mp4") + std::string(1, '\0')));
}

TEST(MediaFileError, LinkToNowhere)
{
    const Media::ScratchFolder scratch;
    std::filesystem::create_symlink(scratch.Path("nowhere"), scratch.Path("link.mp4"));
    EXPECT_EQ(kMissing, ReasonFor(scratch.Path("link.mp4")));
}

TEST(MediaFileError, LinkToItself)
{
    const Media::ScratchFolder scratch;
    std::filesystem::create_symlink(scratch.Path("link.mp4"), scratch.Path("link.mp4"));
    EXPECT_THAT(ReasonFor(scratch.Path("link.mp4")), StartsWith("cannot be looked up ("));
}

TEST(MediaFileError, Directory)
{
    const Media::ScratchFolder scratch;
    EXPECT_EQ("is a directory, not a file", ReasonFor(scratch.Path(".")));
}

TEST(MediaFileError, PipeThatNobodyWritesDoesNotHang)
{
    const Media::ScratchFolder scratch;
    ASSERT_EQ(0, ::mkfifo(scratch.Path("pipe.mp4").c_str(), 0600));
    EXPECT_EQ("is not a regular file", ReasonFor(scratch.Path("pipe.mp4")));
}

TEST(MediaFileError, Device) { EXPECT_EQ("is not a regular file", ReasonFor("/dev/zero")); }

TEST(MediaFileError, FileThatMustNotBeRead)
{
    const Media::ScratchFolder scratch;
    const auto path = scratch.Write("secret.mp4", "secret");
    std::filesystem::permissions(path, std::filesystem::perms::none);
    std::filesystem::permissions(scratch.Path("."), std::filesystem::perms::all);
    const WithoutPrivileges user;
    EXPECT_THAT(ReasonFor(path), HasSubstr("(Permission denied)"));
}

TEST(MediaFileError, EmptyFile) { EXPECT_EQ("is empty", ReasonForBytes("")); }

TEST(MediaFileError, TextFile)
{
    EXPECT_EQ(kUnknown, ReasonForBytes("hello world\nthis is text\nand more of it\n"));
}

TEST(MediaFileError, TextFileWithTheEndingOfOne)
{
    const Media::ScratchFolder scratch;
    EXPECT_EQ(kUnknown, ReasonFor(scratch.Write("notes.txt", "hello world\n")));
}

TEST(MediaFileError, OneByte) { EXPECT_EQ(kUnknown, ReasonForBytes("x")); }

TEST(MediaFileError, Zeros) { EXPECT_EQ(kUnknown, ReasonForBytes(std::string(100000, '\0'))); }

TEST(MediaFileError, StillPicture)
{
    EXPECT_EQ("is a still picture, not a media file", ReasonFor(Media::Clip("picture.png")));
}

TEST(MediaFileError, SubtitlesOnly)
{
    EXPECT_EQ("holds neither video nor audio", ReasonFor(Media::Clip("subtitles.mkv")));
}

TEST(MediaFileError, MP4CutOffBeforeItsDescription)
{
    EXPECT_THAT(ReasonForBytes(StartOf("film.mp4", 0.5)), StartsWith(kDamaged));
}

TEST(MediaFileError, MatroskaCutOffBeforeItsDescription)
{
    EXPECT_THAT(ReasonForBytes(Media::BytesOf(Media::Clip("film.mkv")).substr(0, 60)), StartsWith(kDamaged));
}

TEST(MediaFileError, CutOffFileReadsWhenItsDescriptionIsWhole)
{
    EXPECT_EQ(320, WidthOf(StartOf("streamed.mp4", 0.6)));
    EXPECT_EQ(640, WidthOf(StartOf("film.mkv", 0.6)));
}

// A header that promises a film, and then a gigabyte of holes.
TEST(MediaFileError, FileMadeToBeReadForEverComesToAnEnd)
{
    const Media::ScratchFolder scratch;
    const auto path = scratch.Write("long.mkv", Media::BytesOf(Media::Clip("film.mkv")).substr(0, 60));
    std::filesystem::resize_file(path, std::uintmax_t{1} << 30);
    EXPECT_EQ("is damaged or cut off (its description has no end)", ReasonFor(path));
}

struct PlaylistCase
{
    const char* name;
    const char* text;
    const char* reason;
};

constexpr std::array kPlaylists{
    PlaylistCase{"M3U8",
                 "#EXTM3U\n#EXT-X-TARGETDURATION:9\n#EXTINF:9,\nhttp://127.0.0.1:9/a.ts\n#EXT-X-ENDLIST\n",
                 "is a playlist, not a media file"},
    PlaylistCase{"Concat", "ffconcat version 1.0\nfile /etc/passwd\n", "is a playlist, not a media file"},
    PlaylistCase{"MPD",
                 "<?xml version=\"1.0\"?>\n<MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" "
                 "profiles=\"urn:mpeg:dash:profile:isoff-on-demand:2011\"></MPD>\n",
                 "is a playlist, not a media file"},
    PlaylistCase{"SDP",
                 "v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\nt=0 0\nm=video 9 RTP/AVP 96\n",
                 "is the description of a network stream, not a media file"},
};

class MediaFilePlaylist : public testing::TestWithParam<PlaylistCase>
{
};

TEST_P(MediaFilePlaylist, IsRefused) { EXPECT_EQ(GetParam().reason, ReasonForBytes(GetParam().text)); }

INSTANTIATE_TEST_SUITE_P(Kinds, MediaFilePlaylist, testing::ValuesIn(kPlaylists),
                         [](const auto& test) { return test.param.name; });

} // namespace

} // namespace Vexlor
