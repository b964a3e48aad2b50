#include "runtime/mediacodecs/VXMediaFile.h"

#include "tests/media/MediaMaker.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

namespace Vexlor
{

namespace
{

struct NameCase
{
    const char* name;
    const char* file;
};

constexpr std::array kNames{
    NameCase{"Blanks", " a clip .mp4"},
    NameCase{"LeadingDash", "-i.mp4"},
    NameCase{"Colon", "pipe:0"},
    NameCase{"Protocol", "file:clip.mp4"},
    NameCase{"List", "concat:a.mp4|b.mp4"},
    NameCase{"Pattern", "clip%03d*?[a].mp4"},
    NameCase{"LineEnd", "a\nb.mp4"},
    NameCase{"Umlauts", "M\xC3\xA4rchen.mp4"},
    NameCase{"FarAway", "\xE6\x98\xA0\xE7\x94\xBB \xF0\x9F\x8E\xAC.mp4"},
    NameCase{"NotUTF8", "\xFF\xFE.mp4"},
    NameCase{"NoEnding", "clip"},
    NameCase{"WrongEnding", "clip.txt"},
    NameCase{"EndingOfAPicture", "clip.png"},
};

class MediaFileName : public testing::TestWithParam<NameCase>
{
};

TEST_P(MediaFileName, IsOnlyAName)
{
    const Media::ScratchFolder scratch;
    std::filesystem::copy_file(Media::Clip("silent.mp4"), scratch.Path(GetParam().file));
    EXPECT_EQ("", ReadMediaFile(scratch.Path(GetParam().file)).error);
}

INSTANTIATE_TEST_SUITE_P(Names, MediaFileName, testing::ValuesIn(kNames),
                         [](const auto& test) { return test.param.name; });

class WorkingFolder final
{
public:
    explicit WorkingFolder(const std::string& path) { std::filesystem::current_path(path); }
    ~WorkingFolder() { std::filesystem::current_path(m_before); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    std::filesystem::path m_before = std::filesystem::current_path();
};

class MediaFileRelativeName : public testing::TestWithParam<NameCase>
{
};

TEST_P(MediaFileRelativeName, IsOnlyAName)
{
    const Media::ScratchFolder scratch;
    std::filesystem::copy_file(Media::Clip("silent.mp4"), scratch.Path(GetParam().file));
    const WorkingFolder here(scratch.Path("."));
    EXPECT_EQ("", ReadMediaFile(GetParam().file).error);
}

INSTANTIATE_TEST_SUITE_P(Names, MediaFileRelativeName, testing::ValuesIn(kNames),
                         [](const auto& test) { return test.param.name; });

constexpr std::array kAddresses{
    NameCase{"Web", "http://127.0.0.1:9/clip.mp4"},
    NameCase{"Pipe", "pipe:0"},
    NameCase{"Data", "data:video/mp4;base64,AAAA"},
    NameCase{"Generator", "testsrc2"},
    NameCase{"Stdin", "-"},
};

class MediaFileAddress : public testing::TestWithParam<NameCase>
{
};

TEST_P(MediaFileAddress, IsAFileThatDoesNotExist)
{
    const std::string address = GetParam().file;
    EXPECT_EQ(address + ": there is no such file", ReadMediaFile(address).error);
}

TEST(MediaFile, AddressOfAFileThatExistsIsStillAName)
{
    const auto address = "file:" + Media::Clip("silent.mp4");
    EXPECT_EQ(address + ": there is no such file", ReadMediaFile(address).error);
}

INSTANTIATE_TEST_SUITE_P(Addresses, MediaFileAddress, testing::ValuesIn(kAddresses),
                         [](const auto& test) { return test.param.name; });

} // namespace

} // namespace Vexlor
