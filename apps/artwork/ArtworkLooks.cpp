#include "ArtworkLooks.h"

#include "ArtworkGroup.h"
#include "ArtworkPictures.h"
#include "apps/host/Failure.h"

#include "IVXArtworkImage.h"
#include "IVXArtworkImageGroup.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <functional>

namespace Vexlor::Tool
{

namespace
{

using Picture = std::function<QImage(int edge)>;

constexpr int kDotsPerMetre = 2835; // 72 an inch; Qt would ask the screen

QByteArray BytesOf(const std::string& path)
{
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(path + ": " + file.errorString().toStdString());
    auto bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw Failure(path + ": " + file.errorString().toStdString());
    return bytes;
}

std::shared_ptr<IVXArtworkImage> ImageOf(const QByteArray& bytes, int format)
{
    return IVXArtworkImage::MallocArtworkImage(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                               static_cast<std::uint32_t>(bytes.size()),
                                               static_cast<IVXArtworkImage::ArtworkImageFormat>(format));
}

QRgb Disabled(QRgb colour)
{
    const int grey = (qGray(colour) + 170) / 2;
    return qRgba(grey, grey, grey, qAlpha(colour) * 7 / 10);
}

int Lighter(int part) { return part + (255 - part) / 6; }
int Deeper(int part) { return part * (255 + part) / 510; }

QRgb EachPart(QRgb colour, int (*change)(int))
{
    return qRgba(change(qRed(colour)), change(qGreen(colour)), change(qBlue(colour)), qAlpha(colour));
}

QRgb InMode(QRgb colour, int mode)
{
    switch (mode)
    {
    case 1:
        return Disabled(colour);
    case 2:
        return EachPart(colour, Lighter);
    case 3:
        return EachPart(colour, Deeper);
    default:
        return colour;
    }
}

QImage Canvas(int edge)
{
    QImage canvas(edge, edge, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    return canvas;
}

bool IsMarkup(const QByteArray& bytes)
{
    const auto start = bytes.startsWith("\xef\xbb\xbf") ? bytes.mid(3) : bytes;
    return start.trimmed().startsWith('<');
}

Picture DrawingOf(const std::string& path, const QByteArray& bytes)
{
    const auto drawing = std::make_shared<QSvgRenderer>(bytes);
    if (!drawing->isValid())
        throw Failure(path + ": is no SVG that can be drawn");
    drawing->setAspectRatioMode(Qt::KeepAspectRatio);
    return [drawing](int edge)
    {
        auto canvas = Canvas(edge);
        QPainter painter(&canvas);
        painter.setRenderHint(QPainter::Antialiasing);
        drawing->render(&painter, QRectF(0, 0, edge, edge));
        return canvas;
    };
}

Picture PhotoOf(const std::string& path, const QByteArray& bytes)
{
    const auto photo = QImage::fromData(bytes);
    if (photo.isNull())
        throw Failure(path + ": is no picture that can be decoded");
    return [photo](int edge)
    {
        auto canvas = Canvas(edge);
        const auto scaled = photo.scaled(edge, edge, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter painter(&canvas);
        painter.drawImage((edge - scaled.width()) / 2, (edge - scaled.height()) / 2, scaled);
        return canvas;
    };
}

Picture PictureOf(const std::string& path)
{
    const auto bytes = BytesOf(path);
    return IsMarkup(bytes) ? DrawingOf(path, bytes) : PhotoOf(path, bytes);
}

QByteArray Encoded(QImage picture)
{
    picture.setDotsPerMeterX(kDotsPerMetre);
    picture.setDotsPerMeterY(kDotsPerMetre);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

} // namespace

QImage InMode(const QImage& picture, int mode)
{
    auto result = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y)
        for (int x = 0; x < result.width(); ++x)
            result.setPixel(x, y, InMode(result.pixel(x, y), mode));
    return result;
}

std::shared_ptr<IVXArtworkImage> LoadPicture(const std::string& path)
{
    const auto bytes = BytesOf(path);
    if (QImage::fromData(bytes).isNull())
        throw Failure(path + ": is no picture that can be decoded");
    return ImageOf(bytes, FormatOf(bytes));
}

void FillFrom(const std::string& path, IVXArtworkImageGroup& group)
{
    const auto picture = PictureOf(path);
    for (int variant = 0; variant < kArtworkVariants; ++variant)
    {
        const auto normal = picture(kArtworkSizes.at(static_cast<std::size_t>(variant)));
        for (int mode = 0; mode < kArtworkModes; ++mode)
            group.SetArtworkImage(
                ImageOf(Encoded(InMode(normal, mode)), IVXArtworkImage::ArtworkImageFormatPNG), variant,
                mode);
    }
}

} // namespace Vexlor::Tool
