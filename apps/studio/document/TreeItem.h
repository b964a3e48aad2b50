#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace Vexlor
{
class IVXFormatNode;
class IVXFormatPreset;
} // namespace Vexlor

namespace Vexlor::Studio
{

/// A category or a format preset of the tree; neither where both handles are empty.
struct TreeItem
{
    std::shared_ptr<IVXFormatNode> category = {};
    std::shared_ptr<IVXFormatPreset> preset = {};

    bool IsPreset() const { return preset != nullptr; }
    explicit operator bool() const { return category || preset; }
    friend bool operator==(const TreeItem&, const TreeItem&) = default;
};

/// What an item is called and how it is shown.
struct ItemLook
{
    QString name = {};
    QString description = {};
    int faceID = 0; ///< key of the icon

    friend bool operator==(const ItemLook&, const ItemLook&) = default;
};

/// Where something stands, or is to stand: in that category, at that position of the list of its kind.
struct TreePlace
{
    std::shared_ptr<IVXFormatNode> parent = {};
    int index = 0;
};

/// An item and where it stands, or is to stand.
struct PlacedItem
{
    TreeItem item = {};
    TreePlace place = {};
};

/// An item on its way to another place; there it may have another name.
struct MovedItem
{
    TreeItem item = {};
    TreePlace from = {};
    TreePlace to = {};
    QString nameFrom = {};
    QString nameTo = {};
};

/// The way back of all.
std::vector<MovedItem> Reversed(std::vector<MovedItem> items);

QString NameOf(const TreeItem& item);
/// The name on one line; words that there is none.
QString ShownNameOf(const TreeItem& item);
QString DescriptionOf(const TreeItem& item);
/// Key of the icon.
int FaceOf(const TreeItem& item);
ItemLook LookOf(const TreeItem& item);
void SetName(const TreeItem& item, const QString& name);
void SetLook(const TreeItem& item, const ItemLook& look);

/// Position in the list of its kind; -1 where it does not stand there.
int IndexOf(IVXFormatNode& parent, const TreeItem& item);
/// Length of the list of the item's kind.
int CountLike(const IVXFormatNode& parent, const TreeItem& item);
/// True when another item of the same kind in that category has that name.
bool IsNameTaken(IVXFormatNode& parent, const TreeItem& item, const QString& name);
/// True for a category that is the other one or holds it, however deep.
bool Holds(const TreeItem& item, std::shared_ptr<IVXFormatNode> category);
/// A deep copy whose categories know their new parents.
TreeItem CopyOf(const TreeItem& item);

} // namespace Vexlor::Studio
