#include "FormatTreeModel.h"

#include "FaceIcons.h"
#include "TreeMime.h"
#include "apps/studio/ShownText.h"
#include "apps/studio/document/PlaceFinder.h"
#include "apps/studio/document/RecentPresets.h"
#include "apps/studio/document/StudioDocument.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QIcon>
#include <QMimeData>
#include <QSet>

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

using Node = std::shared_ptr<IVXFormatNode>;

/// The row of something in its category: presets stand behind categories.
int RowFor(bool isPreset, const IVXFormatNode& parent, int index)
{
    return isPreset ? parent.ChildCount() + index : index;
}

/// The item of that row.
TreeItem ItemIn(IVXFormatNode& parent, int row)
{
    const int categories = parent.ChildCount();
    return row < categories ? TreeItem{parent.GetChild(row)}
                            : TreeItem{{}, parent.GetFormatPreset(row - categories)};
}

QString PathOf(IVXFormatNode* category)
{
    QStringList names;
    for (auto parent = category->Parent(); parent; parent = parent->Parent())
    {
        names.prepend(QString::fromStdString(category->Name()));
        category = parent.get();
    }
    return names.join(" / ");
}

/// The rows on the way to an index, by which indexes are in the order in which they are shown.
std::vector<int> RowsTo(QModelIndex index)
{
    std::vector<int> rows;
    for (; index.isValid(); index = index.parent())
        rows.insert(rows.begin(), index.row());
    return rows;
}

QString ContainerOf(const TreeItem& item)
{
    return item.preset ? ShownText(item.preset->FormatName()) : QString();
}

QString TipOf(const TreeItem& item)
{
    constexpr int kLongest = 1000;
    auto tip = "<b>" + ShownNameOf(item).toHtmlEscaped() + "</b>";
    if (item.preset)
        tip += " (" + ContainerOf(item).toHtmlEscaped() + ')';
    auto description = DescriptionOf(item);
    if (description.size() > kLongest)
        description = description.left(kLongest) + QChar(0x2026);
    return description.isEmpty() ? tip : tip + "<br>" + description.toHtmlEscaped().replace('\n', "<br>");
}

/// What the picture and the place in the tree tell those who see them.
QString SpokenOf(const TreeItem& item)
{
    const auto kind = item.preset ? FormatTreeModel::tr("Preset, %1").arg(ContainerOf(item))
                                  : FormatTreeModel::tr("Category");
    const auto description = DescriptionOf(item);
    return description.isEmpty() ? kind : kind + ". " + description;
}

} // namespace

QModelIndexList Outermost(const QModelIndexList& indexes)
{
    const QSet<QModelIndex> all(indexes.begin(), indexes.end());
    QModelIndexList outermost;
    for (const auto& index : indexes)
    {
        auto above = index.parent();
        while (above.isValid() && !all.contains(above))
            above = above.parent();
        if (!above.isValid())
            outermost.append(index);
    }
    std::ranges::sort(outermost, {}, RowsTo);
    return outermost;
}

FormatTreeModel::FormatTreeModel(StudioDocument& document, const FaceIcons& icons, QObject* parent)
    : QAbstractItemModel(parent), m_document(document), m_icons(icons)
{
    FollowTree();
    connect(&document, &StudioDocument::PresetChanged, this,
            [this](const auto& preset) {
                TellOfItem({{}, preset});
            });
}

void FormatTreeModel::FollowTree()
{
    auto& tree = m_document.Tree();
    connect(&tree, &PresetTree::AboutToReset, this, [this] { beginResetModel(); });
    connect(&tree, &PresetTree::Reset, this,
            [this]
            {
                m_rows.clear();
                endResetModel();
            });
    connect(&tree, &PresetTree::AboutToInsert, this,
            [this](const ItemRun& run)
            {
                const int row = RowFor(run.list.isOfPresets, *run.list.category, run.index);
                beginInsertRows(IndexOfNode(run.list.category), row, row + run.Count() - 1);
            });
    connect(&tree, &PresetTree::Inserted, this, [this] { endInsertRows(); });
    connect(&tree, &PresetTree::AboutToRemove, this,
            [this](const ItemRun& run)
            {
                const int row = RowFor(run.list.isOfPresets, *run.list.category, run.index);
                beginRemoveRows(IndexOfNode(run.list.category), row, row + run.Count() - 1);
            });
    connect(&tree, &PresetTree::Removed, this, [this] { endRemoveRows(); });
    connect(&tree, &PresetTree::AboutToRearrange, this, &FormatTreeModel::BeginRearranging);
    connect(&tree, &PresetTree::Rearranged, this, &FormatTreeModel::EndRearranging);
    connect(&tree, &PresetTree::LookChanged, this, &FormatTreeModel::TellOfItem);
}

// What views hold on to follows its items.
void FormatTreeModel::BeginRearranging()
{
    emit layoutAboutToBeChanged();
    m_isRearranging = true;
    m_held = persistentIndexList();
    m_heldItems.clear();
    for (const auto& index : m_held)
        m_heldItems.push_back(ItemAt(index));
}

void FormatTreeModel::EndRearranging()
{
    changePersistentIndexList(m_held, RowsOf(m_heldItems));
    m_isRearranging = false;
    m_held.clear();
    m_heldItems.clear();
    emit layoutChanged();
}

TreeItem FormatTreeModel::ItemAt(const QModelIndex& index) const
{
    if (!index.isValid())
        return {m_document.Root()};
    return ItemIn(*static_cast<IVXFormatNode*>(index.internalPointer()), index.row());
}

QModelIndex FormatTreeModel::IndexOfItem(const TreeItem& item) const
{
    if (item.category == m_document.Root())
        return {};
    return IndexAt(item, m_document.Tree().PlaceOf(item));
}

QModelIndexList FormatTreeModel::IndexesOf(const std::vector<TreeItem>& items) const
{
    auto indexes = RowsOf(items);
    indexes.removeIf([](const QModelIndex& index) { return !index.isValid(); });
    return indexes;
}

QModelIndexList FormatTreeModel::RowsOf(const std::vector<TreeItem>& items) const
{
    const PlaceFinder places(m_document.Root());
    QModelIndexList indexes;
    for (const auto& item : items)
        indexes.append(IndexAt(item, places.Find(item)));
    return indexes;
}

QModelIndex FormatTreeModel::IndexAt(const TreeItem& item, const TreePlace& place) const
{
    return place.parent
               ? createIndex(RowFor(item.IsPreset(), *place.parent, place.index), 0, place.parent.get())
               : QModelIndex();
}

QModelIndex FormatTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, ItemAt(parent).category.get());
}

QModelIndex FormatTreeModel::parent(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    const auto* category = static_cast<const IVXFormatNode*>(index.internalPointer());
    const auto above = const_cast<IVXFormatNode*>(category)->Parent();
    return above ? createIndex(RowOf(*above, category), 0, above.get()) : QModelIndex();
}

// Views ask for parents all the time: where a child stood last time is where it stands now, as a rule.
int FormatTreeModel::RowOf(IVXFormatNode& parent, const IVXFormatNode* child) const
{
    auto& row = m_rows[child];
    if (parent.GetChild(row).get() != child)
        for (row = 0; row < parent.ChildCount() && parent.GetChild(row).get() != child;)
            ++row;
    return row;
}

QModelIndex FormatTreeModel::IndexOfNode(const Node& node) const
{
    const auto above = node == m_document.Root() ? Node() : node->Parent();
    return above ? createIndex(RowOf(*above, node.get()), 0, above.get()) : QModelIndex();
}

int FormatTreeModel::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0)
        return 0;
    const auto category = ItemAt(parent).category;
    return category ? category->ChildCount() + category->FormatPresetCount() : 0;
}

int FormatTreeModel::columnCount(const QModelIndex&) const { return 1; }

bool FormatTreeModel::hasChildren(const QModelIndex& parent) const { return rowCount(parent) > 0; }

QVariant FormatTreeModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto item = ItemAt(index);
    switch (role)
    {
    case Qt::DisplayRole:
        return ShownNameOf(item);
    case Qt::EditRole:
        return NameOf(item);
    case Qt::DecorationRole:
        return m_icons.IconOf(FaceOf(item), item.IsPreset());
    case Qt::ToolTipRole:
        return TipOf(item);
    case Qt::AccessibleDescriptionRole:
        return SpokenOf(item);
    case ContainerRole:
        return item.preset ? ContainerOf(item) : QVariant();
    case PathRole:
        return PathOf(static_cast<IVXFormatNode*>(index.internalPointer()));
    default:
        return {};
    }
}

bool FormatTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    const auto reason = TreeEditor(m_document).Rename(ItemAt(index), value.toString());
    if (!reason.isEmpty())
        emit Refused(reason);
    return reason.isEmpty();
}

Qt::ItemFlags FormatTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const auto flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled;
    return ItemAt(index).IsPreset() ? flags | Qt::ItemNeverHasChildren : flags | Qt::ItemIsDropEnabled;
}

Qt::DropActions FormatTreeModel::supportedDropActions() const { return Qt::MoveAction | Qt::CopyAction; }

QStringList FormatTreeModel::mimeTypes() const { return {kTreeMimeType}; }

QMimeData* FormatTreeModel::mimeData(const QModelIndexList& indexes) const
{
    std::vector<TreeItem> items;
    for (const auto& index : Outermost(indexes))
        items.push_back(ItemAt(index));
    return items.empty() ? nullptr : new TreeMime(std::move(items));
}

bool FormatTreeModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                      const QModelIndex& parent) const
{
    const bool isTaken = action == Qt::MoveAction || action == Qt::CopyAction;
    const auto category = ItemAt(parent).category;
    if (!isTaken || !data->hasFormat(kTreeMimeType) || !category)
        return false;
    // Recently used presets keep themselves, but for their order.
    const auto isIn = [&category](const TreeItem& item) { return IndexOf(*category, item) >= 0; };
    return category != FindRecentCategory(*m_document.Root()) ||
           (action == Qt::MoveAction && HoldsObjects(*data) && std::ranges::all_of(ItemsIn(*data), isIn));
}

bool FormatTreeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                   const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    DropPlace place{ItemAt(parent).category};
    if (row >= 0)
    {
        place.categoryIndex = row;
        place.presetIndex = std::max(row - place.parent->ChildCount(), 0);
    }
    TreeEditor editor(m_document);
    auto items = ItemsIn(*data);
    if (action == Qt::CopyAction || !HoldsObjects(*data))
        items = editor.Copy(items, place);
    else if (const auto reason = editor.Move(items, place); !reason.isEmpty())
        emit Refused(reason);
    emit Dropped(items);
    return true;
}

void FormatTreeModel::TellOfItem(const TreeItem& item)
{
    if (m_isRearranging)
        return; // everything is looked at anew then
    if (const auto index = IndexOfItem(item); index.isValid())
        emit dataChanged(index, index);
}

} // namespace Vexlor::Studio
