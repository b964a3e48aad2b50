#pragma once

#include "ItemList.h"

#include <QObject>

#include <vector>

namespace Vexlor::Studio
{

/// The tree of the document, and word of each change of its shape before and after it, as item models need.
///
/// Changes of many items are made at once, in time that grows with the lists they stand in. They are
/// tolerant: what is not where it was is left alone, for lists that keep themselves may have changed between
/// a step and its undoing.
class PresetTree : public QObject
{
    Q_OBJECT

public:
    /// The built-in catalogue.
    explicit PresetTree(QObject* parent = nullptr);
    ~PresetTree() override;

    /// Never empty.
    const std::shared_ptr<IVXFormatNode>& Root() const { return m_root; }
    /// Replaces everything.
    void SetRoot(std::shared_ptr<IVXFormatNode> root);

    /// The category that the item stands in; empty for the root and for what is not in the tree. Looks
    /// through the whole tree for a preset.
    std::shared_ptr<IVXFormatNode> ParentOf(const TreeItem& item) const;
    /// Where the item stands; without a parent where it is not in the tree.
    TreePlace PlaceOf(const TreeItem& item) const;

    /// Puts the items there, list by list in the order in which those come first. The indexes are those that
    /// the items have then; one beyond the list means its end.
    void Insert(const std::vector<PlacedItem>& items);
    /// Takes the items out of those categories, the lists from the last to the first; the indexes say where
    /// they are looked for first.
    void Remove(const std::vector<PlacedItem>& items);
    /// Moves the items into other lists or inside of theirs, where they have those indexes then and those
    /// names.
    void Move(std::vector<MovedItem> items);

    /// The same with one item.
    void Insert(const TreeItem& item, const TreePlace& place);
    void Remove(const TreeItem& item, const std::shared_ptr<IVXFormatNode>& parent);
    void Move(const TreeItem& item, const TreePlace& from, const TreePlace& to);

    /// Has the item called and shown so.
    void SetLook(const TreeItem& item, const ItemLook& look);

signals:
    void AboutToReset();
    void Reset();
    void AboutToInsert(const Vexlor::Studio::ItemRun& run);
    void Inserted();
    void AboutToRemove(const Vexlor::Studio::ItemRun& run);
    void Removed();
    /// Items go to other places, and some get other names, of which LookChanged tells on the way.
    void AboutToRearrange();
    void Rearranged();
    void LookChanged(const Vexlor::Studio::TreeItem& item);

private:
    bool IsHere(std::shared_ptr<IVXFormatNode> node) const;
    void Insert(ItemRun run);
    void Remove(const ItemRun& run);
    void Rename(const MovedItem& moved);

    std::shared_ptr<IVXFormatNode> m_root;
};

} // namespace Vexlor::Studio
