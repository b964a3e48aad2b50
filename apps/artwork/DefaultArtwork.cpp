#include "DefaultArtwork.h"

#include <QResource>

// A linker takes the bytes out of a static library only where something names them; the macro has to stand in
// no namespace.
static void Register() { Q_INIT_RESOURCE(DefaultArtwork); }

namespace Vexlor::Tool
{

std::span<const std::uint8_t> DefaultArtwork()
{
    Register();
    const QResource artwork(QStringLiteral(":/vxpresets.artwork"));
    return {artwork.data(), static_cast<std::size_t>(artwork.size())};
}

} // namespace Vexlor::Tool
