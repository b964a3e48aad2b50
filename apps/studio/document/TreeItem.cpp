#include "TreeItem.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Vexlor::Studio
{

namespace
{

// Copies of categories keep the parents of what they were copied from.
void AdoptDescendants(const std::shared_ptr<IVXFormatNode>& root)
{
    std::vector<std::shared_ptr<IVXFormatNode>> pending{root};
    while (!pending.empty())
    {
        const auto node = std::move(pending.back());
        pending.pop_back();
        for (const auto& child : node->GetChildList())
        {
            child->SetParent(node);
            pending.push_back(child);
        }
    }
}

/// The names of the other items of the same kind there.
std::unordered_set<std::string> NamesBeside(IVXFormatNode& parent, const TreeItem& item)
{
    std::unordered_set<std::string> names;
    if (item.preset)
        for (int i = 0; i < parent.FormatPresetCount(); ++i)
        {
            if (const auto other = parent.GetFormatPreset(i); other != item.preset)
                names.insert(other->Name());
        }
    else
        for (const auto& other : parent.GetChildList())
            if (other != item.category)
                names.insert(other->Name());
    return names;
}

} // namespace

QString NameOf(const TreeItem& item)
{
    return QString::fromStdString(item.preset ? item.preset->Name() : item.category->Name());
}

QString DescriptionOf(const TreeItem& item)
{
    return QString::fromStdString(item.preset ? item.preset->Description() : item.category->Description());
}

int FaceOf(const TreeItem& item) { return item.preset ? item.preset->FaceID() : item.category->FaceID(); }

void SetName(const TreeItem& item, const QString& name)
{
    if (item.preset)
        item.preset->SetName(name.toStdString());
    else
        item.category->SetName(name.toStdString());
}

int IndexOf(IVXFormatNode& parent, const TreeItem& item)
{
    return item.preset ? parent.IndexOfFormatPreset(item.preset) : parent.IndexOfChild(item.category);
}

int CountLike(const IVXFormatNode& parent, const TreeItem& item)
{
    return item.preset ? parent.FormatPresetCount() : parent.ChildCount();
}

bool IsNameTaken(IVXFormatNode& parent, const TreeItem& item, const QString& name)
{
    return NamesBeside(parent, item).contains(name.toStdString());
}

QString FreeName(IVXFormatNode& parent, const TreeItem& item, const QString& name)
{
    const auto taken = NamesBeside(parent, item);
    auto free = name;
    for (int number = 2; taken.contains(free.toStdString()); ++number)
        free = name + ' ' + QString::number(number);
    return free;
}

bool Holds(const TreeItem& item, std::shared_ptr<IVXFormatNode> category)
{
    while (category && category != item.category)
        category = category->Parent();
    return category != nullptr;
}

TreeItem CopyOf(const TreeItem& item)
{
    if (item.preset)
        return {{}, item.preset->Clone()};
    TreeItem copy{item.category->Clone(IVXFormatNode::CloneAll)};
    copy.category->SetParent({});
    AdoptDescendants(copy.category);
    return copy;
}

} // namespace Vexlor::Studio
