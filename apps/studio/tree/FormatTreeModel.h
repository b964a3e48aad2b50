#pragma once

#include "apps/studio/document/TreeEditor.h"

#include <QAbstractItemModel>

#include <unordered_map>

namespace Vexlor::Studio
{

class FaceIcons;
class StudioDocument;

/// The indexes without those that stand below another one of them.
QModelIndexList Outermost(const QModelIndexList& indexes);

/// The tree as views show it: the categories below one, then its presets. Nothing is made for rows that
/// nobody asks for; an index carries the category that its row stands in.
class FormatTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role
    {
        ContainerRole = Qt::UserRole, ///< name of a preset's container
        PathRole,                     ///< names of the categories above, with " / " in between
    };

    FormatTreeModel(StudioDocument& document, const FaceIcons& icons, QObject* parent = nullptr);

    /// What stands there; the root for no index.
    TreeItem ItemAt(const QModelIndex& index) const;
    /// Where that stands; no index for the root and for what is not in the tree.
    QModelIndex IndexOfItem(const TreeItem& item) const;
    /// Where each of those stands that is in the tree.
    QModelIndexList IndexesOf(const std::vector<TreeItem>& items) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

signals:
    /// Why something was not done, in words.
    void Refused(const QString& reason);
    /// Something came to another place by being dropped.
    void Dropped(const std::vector<Vexlor::Studio::TreeItem>& items);

private:
    QModelIndexList RowsOf(const std::vector<TreeItem>& items) const;
    QModelIndex IndexAt(const TreeItem& item, const TreePlace& place) const;
    int RowOf(IVXFormatNode& parent, const IVXFormatNode* child) const;
    QModelIndex IndexOfNode(const std::shared_ptr<IVXFormatNode>& node) const;
    void FollowTree();
    void BeginRearranging();
    void EndRearranging();
    void TellOfItem(const TreeItem& item);

    StudioDocument& m_document;
    const FaceIcons& m_icons;
    mutable std::unordered_map<const IVXFormatNode*, int> m_rows; // where children stood last; looked at anew
    QModelIndexList m_held;            // persistent indexes, while the tree is rearranged
    std::vector<TreeItem> m_heldItems; // what they are of
    bool m_isRearranging = false;
};

} // namespace Vexlor::Studio
