#include "tests/apps/ArtworkFiles.h"

#include "tests/foundation/TestFolder.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>

namespace Vexlor::Apps
{

namespace
{

constexpr std::size_t kHeadSize = 51200;

std::string TextOf(const QByteArray& bytes) { return bytes.toStdString(); }

} // namespace

std::string LittleEndian(std::uint64_t number, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(number >> (8 * i) & 0xff);
    return text;
}

std::string TinyPNG()
{
    return TextOf(QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk"
                                         "+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg=="));
}

std::string CircleSVG(const std::string& colour)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 8 8"><circle cx="4" cy="4" r="4" fill=")" +
           colour + R"("/></svg>)";
}

std::string PlainPNG(int width, int height, std::uint32_t colour)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return TextOf(bytes);
}

std::string Stored(const std::string& encoded, std::uint32_t format)
{
    return "VXPI" + LittleEndian(format, 4) + encoded;
}

std::string Group(const std::vector<std::pair<int, std::string>>& pictures, std::optional<int> count)
{
    auto bytes =
        std::string("IG\0", 3) +
        LittleEndian(static_cast<std::uint32_t>(count.value_or(static_cast<int>(pictures.size()))), 4);
    for (const auto& [key, picture] : pictures)
        bytes += LittleEndian(static_cast<std::uint32_t>(key), 4) + LittleEndian(picture.size(), 4) + picture;
    return bytes;
}

std::string File(const std::vector<Entry>& table, const std::string& groups, std::optional<int> count)
{
    auto head = std::string("ZQAW2023CC\0", 11) +
                LittleEndian(static_cast<std::uint32_t>(count.value_or(static_cast<int>(table.size()))), 4);
    for (const auto& entry : table)
        head += LittleEndian(static_cast<std::uint32_t>(entry.faceID), 4) + LittleEndian(0, 4) +
                LittleEndian(entry.offset, 8) + LittleEndian(entry.size, 4) + std::string(12, '\0');
    head.resize(std::max(kHeadSize, head.size()));
    return head + groups;
}

std::string FileOf(const std::vector<std::pair<int, std::string>>& groups)
{
    std::vector<Entry> table;
    std::string bytes;
    for (const auto& [faceID, group] : groups)
    {
        table.push_back({faceID, kHeadSize + bytes.size(), static_cast<std::uint32_t>(group.size())});
        bytes += group;
    }
    return File(table, bytes);
}

testing::AssertionResult Holds(const std::string& path, const std::string& bytes)
{
    const auto content = ContentOf(path);
    if (content == bytes)
        return testing::AssertionSuccess();
    const auto [there, wanted] = std::ranges::mismatch(content, bytes);
    return testing::AssertionFailure() << path << " has " << content.size() << " bytes, not " << bytes.size()
                                       << "; the first other one is at " << there - content.begin();
}

} // namespace Vexlor::Apps
