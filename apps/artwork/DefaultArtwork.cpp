#include "DefaultArtwork.h"

#include <QResource>

namespace
{

// A linker takes the bytes out of a static library only where something names them; the macro has to stand in
// no namespace of its own.
void Register() { Q_INIT_RESOURCE(DefaultArtwork); }

} // namespace

namespace Vexlor::Tool
{

std::span<const std::uint8_t> DefaultArtwork()
{
    Register();
    const QResource artwork(QStringLiteral(":/vxpresets.artwork"));
    return {artwork.data(), static_cast<std::size_t>(artwork.size())};
}

} // namespace Vexlor::Tool
