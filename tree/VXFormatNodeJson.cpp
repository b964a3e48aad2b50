#include "tree/VXFormatNode.h"

#include "IVXJsonValue.h"

namespace Vexlor
{

namespace
{

constexpr std::string_view kName = "name";
constexpr std::string_view kDescription = "description";
constexpr std::string_view kFaceID = "faceID";
constexpr std::string_view kFormatPresetList = "formatPresetList";
constexpr std::string_view kChildList = "childList";

/// The node that an object describes, without its children.
std::shared_ptr<IVXFormatNode> ReadNode(const IVXJsonValue& json)
{
    auto node = std::make_shared<VXFormatNode>();
    node->SetName(json.GetValueString(kName));
    node->SetDescription(json.GetValueString(kDescription));
    node->SetFaceID(json.GetValueInt(kFaceID));
    node->SetFormatPresetList(
        ReadEach(*json.GetValueArray(kFormatPresetList), &IVXFormatPreset::MallocFormatPreset));
    return node;
}

std::shared_ptr<IVXJsonValue> WriteNode(const IVXFormatNode& node,
                                        const std::vector<std::shared_ptr<IVXJsonValue>>& children)
{
    std::vector<std::shared_ptr<IVXJsonValue>> presets;
    const int count = node.FormatPresetCount();
    presets.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        presets.push_back(node.GetFormatPreset(i)->JsonValue());
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString(kName, node.Name());
    json->SetValueString(kDescription, node.Description());
    json->SetValueInt(kFaceID, node.FaceID());
    json->SetValueArray(kFormatPresetList, presets);
    json->SetValueArray(kChildList, children);
    return json;
}

/// A node on the way down, with the values of the children that are already written.
struct Step
{
    explicit Step(const IVXFormatNode& start) : node(&start) {}

    const IVXFormatNode* node;
    std::vector<std::shared_ptr<IVXJsonValue>> children;
};

} // namespace

std::shared_ptr<IVXFormatNode>
IVXFormatNode::MallocFormatNode(const std::shared_ptr<const IVXJsonValue>& json)
{
    const auto rootValue = json ? json : IVXJsonValue::JsonValueNull();
    auto root = ReadNode(*rootValue);
    std::vector<std::pair<std::shared_ptr<IVXFormatNode>, std::shared_ptr<const IVXJsonValue>>> pending;
    pending.emplace_back(root, rootValue);
    while (!pending.empty())
    {
        const auto [node, value] = std::move(pending.back());
        pending.pop_back();
        const auto children = value->GetValueArray(kChildList);
        for (int i = 0; i < children->Size(); ++i)
        {
            auto childValue = children->At(i);
            auto child = ReadNode(*childValue);
            child->SetParent(node);
            node->AddChild(child);
            pending.emplace_back(std::move(child), std::move(childValue));
        }
    }
    return root;
}

// Children first: a value may be copied when it is put into an array.
std::shared_ptr<IVXJsonValue> VXFormatNode::JsonValue() const
{
    std::vector<Step> path{Step(*this)};
    for (;;)
    {
        auto& step = path.back();
        const int written = CountOf(step.children);
        if (written < step.node->ChildCount())
        {
            path.emplace_back(*step.node->GetChild(written));
            continue;
        }
        auto json = WriteNode(*step.node, step.children);
        path.pop_back();
        if (path.empty())
            return json;
        path.back().children.push_back(std::move(json));
    }
}

} // namespace Vexlor
