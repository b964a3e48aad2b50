#include "IVXArtworkImageMgr.h"

#include "tests/artwork/ArtworkBytes.h"
#include "tests/foundation/TestFolder.h"

#include <QIcon>
#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace Vexlor
{

namespace
{

/// The bytes of the document's block of hexadecimal lines: eight digits of offset, then pairs of digits, each
/// behind one or two spaces, up to a wider gap. Gaps between the lines are zeros.
Bytes Example()
{
    std::ifstream document(VX_SOURCE_FOLDER "/docs/artwork-file.md");
    Bytes bytes;
    std::string line;
    while (std::getline(document, line) && line != "```hex")
        continue;
    while (std::getline(document, line) && line != "```")
    {
        bytes.resize(std::stoul(line, nullptr, 16));
        std::istringstream digits(line.substr(10, line.find("   ", 10) - 10));
        unsigned byte = 0;
        while (digits >> std::hex >> byte)
            bytes.push_back(static_cast<std::uint8_t>(byte));
    }
    return bytes;
}

class ArtworkDocument : public testing::Test
{
protected:
    TestFolder m_folder;
    std::string m_path = m_folder / "icons";
};

TEST_F(ArtworkDocument, ItsExampleIsAFileOfOneIcon)
{
    const auto bytes = Example();
    ASSERT_EQ(51281U, bytes.size());
    WithContent(m_path, TextOf(bytes));
    const auto manager = IVXArtworkImageMgr::MallocArtworkImageMgr(m_path, nullptr);
    ASSERT_EQ(1, manager->ArtworkImageGroupCount());
    const auto group = manager->GetArtworkImageGroupByID(IVXArtworkImageMgr::FormatFaceIDMP4);
    ASSERT_NE(nullptr, group);
    ASSERT_NE(nullptr, group->GetArtworkImage(0, 0));
    EXPECT_EQ(IVXArtworkImage::ArtworkImageFormatBMP, group->GetArtworkImage(0, 0)->Format());
    const auto pixels = group->ToIcon().pixmap(QSize(1, 1)).toImage();
    EXPECT_EQ(QColor(0xE2, 0x7A, 0x2A), pixels.pixelColor(0, 0));
}

TEST_F(ArtworkDocument, ItsExampleIsWhatTheLibraryWrites)
{
    const auto bytes = Example();
    const auto bitmap = Slice(bytes, 0xC817, bytes.size());
    const auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
    group->SetArtworkImage(IVXArtworkImage::MallocArtworkImage(bitmap.data(),
                                                               static_cast<std::uint32_t>(bitmap.size()),
                                                               IVXArtworkImage::ArtworkImageFormatBMP),
                           0, 0);
    IVXArtworkImageMgr::MallocArtworkImageMgrMutable(m_path, nullptr)
        ->AddArtworkImageGroup(group, IVXArtworkImageMgr::FormatFaceIDMP4);
    EXPECT_EQ(bytes, BytesOf(ContentOf(m_path)));
}

} // namespace

} // namespace Vexlor
