#pragma once

#include "apps/studio/document/TreeItem.h"

#include <QMimeData>

#include <vector>

namespace Vexlor::Studio
{

inline constexpr auto* kTreeMimeType = "application/x-vexlor-presets+json";

/// Categories and presets on their way by drag and drop or by the clipboard: within this program the objects
/// themselves, to others the text of them.
class TreeMime : public QMimeData
{
    Q_OBJECT

public:
    explicit TreeMime(std::vector<TreeItem> items) : m_items(std::move(items)) {}

    const std::vector<TreeItem>& Items() const { return m_items; }

    QStringList formats() const override;
    bool hasFormat(const QString& type) const override { return formats().contains(type); }

protected:
    QVariant retrieveData(const QString& type, QMetaType preferred) const override;

private:
    std::vector<TreeItem> m_items;
};

/// True when the objects themselves are in it, so that they can be moved.
bool HoldsObjects(const QMimeData& data);
/// What is in it; new objects where it came from another program.
std::vector<TreeItem> ItemsIn(const QMimeData& data);

} // namespace Vexlor::Studio
