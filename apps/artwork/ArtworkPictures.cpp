#include "ArtworkPictures.h"

#include "IVXArtworkImage.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <string_view>

namespace Vexlor::Tool
{

namespace
{

struct FormatRow
{
    int format;
    std::string_view name;
    std::string_view ending;
    std::string_view decoder;
};

constexpr std::array kFormats{
    FormatRow{IVXArtworkImage::ArtworkImageFormatPNG, "PNG", "png", "png"},
    FormatRow{IVXArtworkImage::ArtworkImageFormatJPEG, "JPEG", "jpg", "jpeg"},
    FormatRow{IVXArtworkImage::ArtworkImageFormatWebP, "WebP", "webp", "webp"},
    FormatRow{IVXArtworkImage::ArtworkImageFormatBMP, "BMP", "bmp", "bmp"},
    FormatRow{IVXArtworkImage::ArtworkImageFormatSVG, "SVG", "svg", "svg"},
};

const FormatRow* RowOf(int format)
{
    const auto* const row = std::ranges::find(kFormats, format, &FormatRow::format);
    return row != kFormats.end() ? row : nullptr;
}

// Shares the image's bytes, which must outlive it.
QByteArray BytesOf(const IVXArtworkImage& image)
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(image.Bytes()),
                                   static_cast<qsizetype>(image.Size()));
}

} // namespace

QImage Decoded(const IVXArtworkImage& image) { return QImage::fromData(BytesOf(image)); }

QSize SizeOf(const IVXArtworkImage& image)
{
    auto bytes = BytesOf(image);
    QBuffer buffer(&bytes);
    return QImageReader(&buffer).size();
}

std::string FormatName(int format)
{
    const auto* const row = RowOf(format);
    return row ? std::string(row->name) : std::to_string(format);
}

std::string FileEndingOf(int format)
{
    const auto* const row = RowOf(format);
    return row ? std::string(row->ending) : "bin";
}

int FormatOf(const QByteArray& bytes)
{
    auto copy = bytes;
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    const auto name = QImageReader::imageFormat(&buffer).toStdString();
    const auto* const row = std::ranges::find(kFormats, name, &FormatRow::decoder);
    return row != kFormats.end() ? row->format : IVXArtworkImage::ArtworkImageFormatUnknown;
}

} // namespace Vexlor::Tool
