#pragma once

#include <QImage>

#include <string>

namespace Vexlor
{
class IVXArtworkImage;
}

namespace Vexlor::Tool
{

/// The picture; null when it cannot be decoded.
QImage Decoded(const IVXArtworkImage& image);
/// The size that the picture says it has, without decoding it; not valid where it cannot be told.
QSize SizeOf(const IVXArtworkImage& image);
/// "PNG"; the number's digits for a format without a name.
std::string FormatName(int format);
/// What files of that format end on: "png"; "bin" for a format without a name.
std::string FileEndingOf(int format);
/// Number of the format of those bytes, by their content; 0 for an unknown one.
int FormatOf(const QByteArray& bytes);

} // namespace Vexlor::Tool
