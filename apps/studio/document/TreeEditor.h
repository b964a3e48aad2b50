#pragma once

#include "TreeItem.h"

#include <QCoreApplication>
#include <QString>

#include <limits>
#include <vector>

namespace Vexlor::Studio
{

class FreeNames;
class StudioDocument;

/// Where items go to: into that category, in front of those positions; to the ends of its lists where none
/// are told.
struct DropPlace
{
    std::shared_ptr<IVXFormatNode> parent = {};
    int categoryIndex = std::numeric_limits<int>::max();
    int presetIndex = std::numeric_limits<int>::max();
};

/// What a user does with categories and presets; each operation is one step that can be undone. No operation
/// leaves two siblings of one kind and name where there were none.
class TreeEditor
{
    Q_DECLARE_TR_FUNCTIONS(Vexlor::Studio::TreeEditor)

public:
    using Items = std::vector<TreeItem>;

    explicit TreeEditor(StudioDocument& document) : m_document(document) {}

    /// Gives the item another name; answers why not, in words, where that one is empty or taken.
    QString Rename(const TreeItem& item, const QString& name);
    void Remove(const Items& items);
    /// Moves the items so that they follow one another there; presets that come into the category of recently
    /// used ones, which keeps itself, are copied instead. Answers false, and nothing happens, where a
    /// category would come into itself.
    bool Move(const Items& items, DropPlace to);
    /// Copies the items to that place; answers the copies.
    Items Copy(const Items& items, DropPlace to);
    /// Moves the item within its list by that many places.
    void Shift(const TreeItem& item, int by);
    /// Copies the items into the category of the user's own, which is made where it is missing.
    Items CloneIntoOwn(const Items& items);
    /// Adds an empty category at the end of that one.
    TreeItem AddCategory(const std::shared_ptr<IVXFormatNode>& parent, const QString& name);
    /// Adds a new preset of a container at the end of that category; an empty item where none of that name
    /// can be written.
    TreeItem AddPreset(const std::shared_ptr<IVXFormatNode>& parent, const QString& container);
    /// Adds everything below a root: categories of one name become one. Answers the presets in their order.
    Items AddAll(IVXFormatNode& root, const QString& what);

private:
    TreeItem OwnCategory();
    void Insert(const TreeItem& item, const TreePlace& place);
    bool IsThere(const TreeItem& item, DropPlace place) const;
    TreeItem CopyOne(const TreeItem& item, FreeNames& names, DropPlace& to);
    void SetName(const TreeItem& item, const QString& name);
    void MoveOne(const TreeItem& item, const TreePlace& from, DropPlace& to);
    void Absorb(const std::shared_ptr<IVXFormatNode>& into, IVXFormatNode& node, Items& presets);

    StudioDocument& m_document;
};

} // namespace Vexlor::Studio
