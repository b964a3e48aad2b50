#include "catalog/DefaultTree.h"

#include "catalog/PresetBuilder.h"

#include "IVXFormatNode.h"

#include <string>

namespace Vexlor::Catalog
{

namespace
{

using Node = std::shared_ptr<IVXFormatNode>;

Node ChildOf(const Node& parent, std::string_view name)
{
    if (auto child = parent->FindChild(std::string(name)))
        return child;
    auto child = IVXFormatNode::MallocFormatNode(parent);
    child->SetName(std::string(name));
    return child;
}

void AddGroup(const Node& root, const Group& group, PresetBuilder& builder)
{
    auto node = ChildOf(root, group.category);
    if (!group.child.empty())
        node = ChildOf(node, group.child);
    node->SetDescription(std::string(group.description));
    node->SetFaceID(group.faceID);
    for (const auto& row : group.presets)
        node->AddFormatPreset(
            builder.Build(row, group.offer)); // nothing where the container cannot be written
}

} // namespace

std::shared_ptr<IVXFormatNode> DefaultTree()
{
    auto root = IVXFormatNode::MallocFormatNode(Node());
    root->SetName("Presets");
    PresetBuilder builder;
    for (const auto groups :
         {GeneralGroups(), VideoGroups(), AudioGroups(), DeviceGroups(), WebVideoGroups(), UserGroups()})
        for (const auto& group : groups)
            AddGroup(root, group, builder);
    return root;
}

} // namespace Vexlor::Catalog
