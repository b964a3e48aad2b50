#include "ArtworkCommands.h"

#include "ArtworkChoice.h"
#include "apps/artwork/ArtworkGroup.h"
#include "apps/artwork/ArtworkPictures.h"
#include "apps/host/Faces.h"
#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include "IVXArtworkImage.h"
#include "IVXData.h"
#include "runtime/foundation/VXAtomicFile.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace Vexlor::Tool
{

namespace
{

// A group is a label above two strips, light and dark. A strip has a place for each mode: the largest
// variant, and beside it the two smaller ones, one above the other.
constexpr int kEdge = 64;
constexpr int kSmallEdge = 32;
constexpr int kGap = 8;
constexpr int kPlace = kEdge + kSmallEdge + 2 * kGap;
constexpr int kStripHeight = kEdge + kGap;
constexpr int kLabelHeight = 20;
constexpr int kCellWidth = kArtworkModes * kPlace + 2 * kGap;
constexpr int kCellHeight = kLabelHeight + 2 * kStripHeight + kGap;

constexpr QRgb kPaper = 0xffffffff;
constexpr QRgb kInk = 0xff202020;
constexpr std::array<QRgb, 2> kStrips{0xfff4f4f4, 0xff232529};

struct Place
{
    int x;
    int y;
    int edge;
};

constexpr std::array<Place, kArtworkVariants> kVariantPlaces{
    Place{kEdge + kGap, kSmallEdge + kGap, 16},
    Place{kEdge + kGap, 0, kSmallEdge},
    Place{0, 0, kEdge},
};

/// Text needs fonts, which need an application; it must not ask for a display.
class Offscreen final
{
public:
    Offscreen() : m_application(m_count, m_arguments.data()) {}

private:
    std::string m_name = "vxpresets";
    std::string m_option = "-platform";
    std::string m_platform = "offscreen";
    std::array<char*, 4> m_arguments{m_name.data(), m_option.data(), m_platform.data(), nullptr};
    int m_count = 3;
    QGuiApplication m_application;
};

void DrawPicture(QPainter& painter, const QPoint& corner, const ArtworkPicture& picture)
{
    auto image = Decoded(*picture.image);
    if (!IsShown(picture.key) || image.isNull())
        return;
    const auto& place = kVariantPlaces.at(static_cast<std::size_t>(picture.key / 10));
    if (image.width() > place.edge || image.height() > place.edge)
        image = image.scaled(place.edge, place.edge, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(corner + QPoint(picture.key % 10 * kPlace + place.x, place.y), image);
}

void DrawGroup(QPainter& painter, const QPoint& corner, const std::string& label, const ArtworkGroup& group)
{
    painter.setPen(QColor(kInk));
    painter.drawText(QRect(corner, QSize(kCellWidth - kGap, kLabelHeight)), Qt::AlignLeft | Qt::AlignVCenter,
                     QString::fromStdString(label));
    auto strip = corner + QPoint(0, kLabelHeight);
    for (const auto colour : kStrips)
    {
        painter.fillRect(QRect(strip, QSize(kCellWidth - kGap, kStripHeight)), QColor(colour));
        for (const auto& picture : group.pictures)
            DrawPicture(painter, strip + QPoint(kGap, kGap / 2), picture);
        strip += QPoint(0, kStripHeight);
    }
}

QImage SheetOf(const ArtworkFile& file)
{
    const int count = static_cast<int>(file.table.size());
    const int columns = std::max(1, static_cast<int>(std::lround(std::sqrt(count * 0.45))));
    const int rows = std::max(1, (count + columns - 1) / columns);
    QImage sheet(columns * kCellWidth + kGap, rows * kCellHeight + kGap, QImage::Format_RGB32);
    if (sheet.isNull())
        throw Failure(file.name + ": not enough memory for the sheet");
    sheet.fill(kPaper);
    QPainter painter(&sheet);
    auto font = painter.font();
    font.setPixelSize(12);
    painter.setFont(font);
    for (int i = 0; i < count; ++i)
    {
        const auto& entry = file.table[static_cast<std::size_t>(i)];
        const QPoint corner(i % columns * kCellWidth + kGap, i / columns * kCellHeight + kGap);
        DrawGroup(painter, corner, FaceText(entry.faceID), ReadGroup(*BlobOf(file, entry)));
    }
    return sheet;
}

void WriteSheet(const std::string& path, const QImage& sheet)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!sheet.save(&buffer, "PNG"))
        throw Failure(path + ": the sheet cannot be encoded");
    std::string error;
    if (!WriteFileAtomically(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())}, &error))
        throw Failure(error);
}

} // namespace

std::string ArtworkShowCommand(const Request& request, const Catalogue&, const Style&)
{
    const auto file = OpenRequested(request.artwork);
    if (file.table.size() > kMostArtworkEntries)
        throw Failure(file.name + ": more groups than an artwork file can hold");
    const Offscreen offscreen;
    const auto& path = request.artwork.target;
    WriteSheet(path, SheetOf(file));
    return OneLine(path) + ": " + Counted(static_cast<int>(file.table.size()), "group", "groups") + '\n';
}

} // namespace Vexlor::Tool
