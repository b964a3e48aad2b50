#pragma once

#include "TreeItem.h"

#include <QCoreApplication>
#include <QString>

#include <limits>
#include <memory>
#include <vector>

class QUndoCommand;

namespace Vexlor::Studio
{

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
/// leaves two siblings of one kind and name where there were none. What would come into the category of
/// recently used presets, from which anything may go, comes into that of the user's own instead.
class TreeEditor
{
    Q_DECLARE_TR_FUNCTIONS(Vexlor::Studio::TreeEditor)

public:
    using Items = std::vector<TreeItem>;

    explicit TreeEditor(StudioDocument& document) : m_document(document) {}

    /// Gives the item another name; answers why not, in words, where that one is empty or taken.
    QString Rename(const TreeItem& item, const QString& name);
    void Remove(const Items& items);
    /// Moves the items so that they follow one another there; answers why not, in words, where a category
    /// would come into itself, or something into the category of recently used presets, which keeps itself.
    QString Move(const Items& items, DropPlace to);
    /// Copies the items to that place; answers the copies.
    Items Copy(const Items& items, DropPlace to);
    /// Moves the items by that many places within the list of the first, where they follow one another then;
    /// those of other lists stay.
    void Shift(const Items& items, int by);
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
    using Added = std::vector<PlacedItem>;

    bool KeepsItself(const std::shared_ptr<IVXFormatNode>& category) const;
    std::shared_ptr<IVXFormatNode> Taker(const std::shared_ptr<IVXFormatNode>& wanted, Added& added) const;
    std::vector<MovedItem> Moves(const Items& items, const DropPlace& to) const;
    Items Copy(const Items& items, DropPlace to, Added added, const QString& what);
    void Absorb(const std::shared_ptr<IVXFormatNode>& into, IVXFormatNode& node, Added& added,
                Items& presets) const;
    void Insert(Added items, const QString& what);
    void Push(std::unique_ptr<QUndoCommand> edit, const QString& what);

    StudioDocument& m_document;
};

} // namespace Vexlor::Studio
