#include "TreeMime.h"

#include "apps/host/document/Qualities.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

namespace Vexlor::Studio
{

namespace
{

using Node = std::shared_ptr<IVXFormatNode>;

constexpr auto* kTextType = "text/plain";

// A category that holds all, as documents have them.
QByteArray TextOf(const std::vector<TreeItem>& items)
{
    const auto holder = IVXFormatNode::MallocFormatNode(Node());
    for (const auto& item : items)
        if (item.preset)
            holder->AddFormatPreset(item.preset);
        else
            holder->AddChild(item.category);
    return QByteArray::fromStdString(JsonText(*holder->JsonValue(), JsonStyle::Indented));
}

std::vector<TreeItem> ItemsOf(const QByteArray& text)
{
    const auto json = ParseJson(text.toStdString());
    if (!json)
        return {};
    const auto holder = IVXFormatNode::MallocFormatNode(json);
    Tool::TakeUpQualities(*holder, *json);
    std::vector<TreeItem> items;
    for (const auto& child : holder->GetChildList())
        items.push_back({child});
    for (int i = 0; i < holder->FormatPresetCount(); ++i)
        items.push_back({{}, holder->GetFormatPreset(i)});
    return items;
}

} // namespace

QStringList TreeMime::formats() const { return {kTreeMimeType, kTextType}; }

QVariant TreeMime::retrieveData(const QString& type, QMetaType) const
{
    return formats().contains(type) ? QVariant(TextOf(m_items)) : QVariant();
}

bool HoldsObjects(const QMimeData& data) { return qobject_cast<const TreeMime*>(&data) != nullptr; }

std::vector<TreeItem> ItemsIn(const QMimeData& data)
{
    if (const auto* mime = qobject_cast<const TreeMime*>(&data))
        return mime->Items();
    return ItemsOf(data.data(kTreeMimeType));
}

} // namespace Vexlor::Studio
