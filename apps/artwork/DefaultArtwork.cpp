#include "DefaultArtwork.h"

#include <QResource>

namespace Vexlor::Tool
{

std::span<const std::uint8_t> DefaultArtwork()
{
    const QResource artwork(QStringLiteral(":/vxpresets.artwork"));
    return {artwork.data(), static_cast<std::size_t>(artwork.size())};
}

} // namespace Vexlor::Tool
