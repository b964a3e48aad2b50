#pragma once

#include <QList>
#include <QPersistentModelIndex>

#include <optional>

class QTreeView;

namespace Vexlor::Studio
{

/// Which rows of a view were expanded before its model was narrowed, which is a proxy of another one.
class ExpandedRows
{
public:
    /// Keeps them, unless some are kept already.
    void Keep(const QTreeView& view);
    /// Has those expanded of them that are still there, and nothing else.
    void Restore(QTreeView& view);

private:
    std::optional<QList<QPersistentModelIndex>> m_rows; // of the proxy's source
};

} // namespace Vexlor::Studio
