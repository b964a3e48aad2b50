#include "runtime/foundation/VXJson.h"

#include "IVXJsonValue.h"
#include "tests/foundation/TestFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <thread>

#include <sys/stat.h>

namespace Vexlor
{

namespace
{

class JsonFile : public testing::Test
{
protected:
    static std::string Fault(const std::string& path)
    {
        std::string error;
        EXPECT_FALSE(ReadJsonFile(path, &error));
        return error;
    }

    TestFolder m_folder;
    std::string m_path = m_folder / "presets.json";
};

} // namespace

TEST_F(JsonFile, ReadsTheFile)
{
    std::string error;
    const auto value = ReadJsonFile(WithContent(m_path, "\xEF\xBB\xBF{\"a\": 1}\n"), &error);
    ASSERT_TRUE(value) << error;
    EXPECT_EQ(1, value->GetValueInt("a"));
}

TEST_F(JsonFile, ReadsAFileOfManyBlocks)
{
    const std::string text = "[\"" + std::string(300000, 'x') + "\"]";
    const auto value = ReadJsonFile(WithContent(m_path, text));
    ASSERT_TRUE(value);
    EXPECT_EQ(text, JsonText(*value));
}

TEST_F(JsonFile, ReadsAPipeToItsEnd)
{
    ASSERT_EQ(0, mkfifo(m_path.c_str(), 0600));
    const std::string text = "[\"" + std::string(300000, 'x') + "\"]";
    std::thread writer([&] { std::ofstream(m_path) << text; });
    const auto value = ReadJsonFile(m_path);
    writer.join();
    ASSERT_TRUE(value);
    EXPECT_EQ(text, JsonText(*value));
}

TEST_F(JsonFile, AnErrorInTheTextNamesFileAndPlace)
{
    EXPECT_EQ(m_path + ":2:3: no JSON value", Fault(WithContent(m_path, "[1,\n  x]")));
}

TEST_F(JsonFile, AnEmptyFileIsAnEmptyDocument)
{
    EXPECT_EQ(m_path + ":1:1: the document is empty", Fault(WithContent(m_path, "")));
}

TEST_F(JsonFile, AMissingFileIsAnError) { EXPECT_EQ(m_path + ": No such file or directory", Fault(m_path)); }

TEST_F(JsonFile, ADirectoryIsAnError)
{
    const auto path = m_folder.Path().string();
    EXPECT_EQ(path + ": Is a directory", Fault(path));
}

TEST_F(JsonFile, AFileBeyond4GiBIsRefusedUnread)
{
    WithContent(m_path, "");
    std::filesystem::resize_file(m_path, std::uintmax_t{1} << 32);
    EXPECT_EQ(m_path + ": larger than 4 GiB", Fault(m_path));
}

TEST_F(JsonFile, TheErrorMayBeLeftOut) { EXPECT_FALSE(ReadJsonFile(m_path)); }

} // namespace Vexlor
