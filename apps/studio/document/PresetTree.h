#pragma once

#include "TreeItem.h"

#include <QObject>

namespace Vexlor::Studio
{

/// The tree of the document, and word of each change of its shape before and after it, as item models need.
///
/// Changes are tolerant: what is not where it was is left alone, for lists that keep themselves may have
/// changed between a step and its undoing.
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
    /// The same, fast for what is or was beside that place.
    TreePlace PlaceBeside(const TreeItem& item, const TreePlace& other) const;

    /// Puts the item there; an index beyond the list means its end.
    void Insert(const TreeItem& item, const TreePlace& place);
    /// Takes the item out of that category.
    void Remove(const TreeItem& item, const std::shared_ptr<IVXFormatNode>& parent);
    /// Moves the item from its category into another one or inside of it; the index counts without the item.
    void Move(const TreeItem& item, const std::shared_ptr<IVXFormatNode>& from, const TreePlace& to);
    /// Has the item called and shown so.
    void SetLook(const TreeItem& item, const ItemLook& look);

signals:
    void AboutToReset();
    void Reset();
    void AboutToInsert(const Vexlor::Studio::TreeItem& item, const Vexlor::Studio::TreePlace& place);
    void Inserted();
    void AboutToRemove(const Vexlor::Studio::TreeItem& item, const Vexlor::Studio::TreePlace& place);
    void Removed();
    /// The place to count in the list as it is before.
    void AboutToMove(const Vexlor::Studio::TreeItem& item, const Vexlor::Studio::TreePlace& from,
                     const Vexlor::Studio::TreePlace& to);
    void Moved();
    void LookChanged(const Vexlor::Studio::TreeItem& item);

private:
    bool IsHere(std::shared_ptr<IVXFormatNode> node) const;

    std::shared_ptr<IVXFormatNode> m_root;
};

} // namespace Vexlor::Studio
