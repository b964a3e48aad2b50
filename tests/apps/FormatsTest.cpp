#include "Documents.h"

#include "VXMediaCodecs.h"

#include <sstream>

namespace Vexlor::Apps
{

namespace
{

std::vector<std::string> Lines(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// The line of the table that is a container's.
std::string LineOf(const std::string& container)
{
    for (const auto& line : Lines(RunTool({"formats"}).out))
        if (line.starts_with(container + ' '))
            return line;
    return {};
}

TEST(FormatsCommand, PrintsALineForEveryContainer)
{
    const auto run = RunTool({"formats"});
    const auto lines = Lines(run.out);
    const auto names = VXMediaCodecSupportOutputAllMediaFormats();
    ASSERT_EQ(names.size() + 1, lines.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(names[i], lines[i + 1].substr(0, lines[i + 1].find(' ')));
    EXPECT_EQ("", run.err);
    EXPECT_EQ(0, run.exitCode);
}

TEST(FormatsCommand, PrintsTheCodecsOfAContainer)
{
    const auto webm = LineOf("WEBM");
    EXPECT_NE(std::string::npos, webm.find("  VP9, AV1, VP8  ")) << webm;
    EXPECT_TRUE(webm.ends_with("  Opus, Vorbis")) << webm;
}

TEST(FormatsCommand, CodecsStandUnderTheirHeadings)
{
    const auto heading = LineOf("Container");
    EXPECT_EQ(heading.find("Video codecs"), LineOf("WEBM").find("VP9"));
    EXPECT_EQ(heading.find("Audio codecs"), LineOf("WEBM").find("Opus"));
    EXPECT_EQ(heading.find("Audio codecs"), LineOf("MP3").rfind("MP3"));
}

TEST(FormatsCommand, JsonHasAnElementForEveryContainer)
{
    const auto json = RunForJson({"formats"});
    const auto names = VXMediaCodecSupportOutputAllMediaFormats();
    ASSERT_EQ(static_cast<int>(names.size()), json->Size());
    for (int i = 0; i < json->Size(); ++i)
        EXPECT_EQ(names[static_cast<std::size_t>(i)], json->At(i)->GetValueString("name"));
}

std::shared_ptr<const IVXJsonValue> ElementOf(const IVXJsonValue& json, std::string_view container)
{
    int i = 0;
    while (i < json.Size() && json.At(i)->GetValueString("name") != container)
        ++i;
    return json.At(i);
}

TEST(FormatsCommand, JsonElementsHaveExactlyTheseMembers)
{
    const auto json = RunForJson({"formats"});
    EXPECT_EQ(R"({"name":"WEBM","videoCodecs":["VP9","AV1","VP8"],"audioCodecs":["Opus","Vorbis"]})",
              JsonText(*ElementOf(*json, "WEBM")));
    EXPECT_EQ(R"({"name":"MP3","videoCodecs":[],"audioCodecs":["MP3"]})", JsonText(*ElementOf(*json, "MP3")));
}

TEST(FormatsCommand, ChecksTheDocumentAllTheSame)
{
    EXPECT_EQ(1, RunTool({"formats", "--document", "/no/such/presets.json"}).exitCode);
}

} // namespace

} // namespace Vexlor::Apps
