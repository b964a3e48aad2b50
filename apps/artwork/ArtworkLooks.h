#pragma once

#include <QByteArray>
#include <QImage>

#include <array>
#include <memory>
#include <string>

namespace Vexlor
{
class IVXArtworkImage;
class IVXArtworkImageGroup;
} // namespace Vexlor

namespace Vexlor::Tool
{

/// Edge of the square pictures of each variant, in pixels.
inline constexpr std::array kArtworkSizes{16, 32, 64};

/// The picture as it looks in that mode: grey and pale when disabled, lighter when active, deeper when
/// selected.
QImage InMode(const QImage& picture, int mode);

/// The picture of that file with its bytes as they are. Throws Failure for what Qt cannot decode.
std::shared_ptr<IVXArtworkImage> LoadPicture(const std::string& path);

/// Fills the group's free places with that SVG or picture file in every size and mode. An SVG is drawn at
/// each size, any other picture is scaled. Throws Failure.
void FillFrom(const std::string& path, IVXArtworkImageGroup& group);

} // namespace Vexlor::Tool
