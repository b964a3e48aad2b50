#include "OwnBitrates.h"

#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/preset/QualityBitrate.h"

#include "IVXCodecPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

bool HasOwnBitrates(const IVXFormatPreset& preset)
{
    const auto isOwn = [](const auto& codec) { return HasOwnBitrate(*codec); };
    return std::ranges::any_of(preset.VideoCodecPresets(), isOwn) ||
           std::ranges::any_of(preset.AudioCodecPresets(), isOwn);
}

// What is as it was read has none. As deep as the categories, which their reader bounds.
void Collect(const StudioDocument& document, const IVXFormatNode& node, QStringList& names)
{
    for (int i = 0; i < node.FormatPresetCount(); ++i)
    {
        const auto preset = node.GetFormatPreset(i);
        if (!document.IsAsRead(*preset) && HasOwnBitrates(*preset))
            names.append(QString::fromStdString(preset->Name()));
    }
    for (const auto& child : node.GetChildList())
        Collect(document, *child, names);
}

} // namespace

QString OwnBitrates::NoteOf(const StudioDocument& document)
{
    QStringList names;
    Collect(document, *document.Root(), names);
    if (names.isEmpty())
        return {};
    return tr("Documents cannot hold a bitrate of one's own: in the file, %n preset(s) have Auto instead, "
              "\"%1\" "
              "among them. Limits are kept.",
              nullptr, static_cast<int>(names.size()))
        .arg(names.front());
}

} // namespace Vexlor::Studio
