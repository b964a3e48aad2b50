#pragma once

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include "tests/platform/ScriptedJson.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{

/// The operations of a node on its format presets, under names that its children's share.
struct PresetFamily
{
    using Node = IVXFormatNode;
    using Element = IVXFormatPreset;
    using Handle = std::shared_ptr<Element>;
    using ConstHandle = std::shared_ptr<const Element>;

    static Handle Make(const std::string& name)
    {
        auto preset = IVXFormatPreset::MallocFormatPreset(Json("{}"));
        preset->SetName(name);
        return preset;
    }

    static constexpr const char* kName = "FormatPresets";
    static constexpr auto kCount = &Node::FormatPresetCount;
    static constexpr Handle (Node::*kGet)(int) = &Node::GetFormatPreset;
    static constexpr ConstHandle (Node::*kConstGet)(int) const = &Node::GetFormatPreset;
    static constexpr auto kAdd = &Node::AddFormatPreset;
    static constexpr auto kSetList = &Node::SetFormatPresetList;
    static constexpr auto kInsert = &Node::InsertFormatPreset;
    static constexpr auto kInsertAll = &Node::InsertFormatPresets;
    static constexpr auto kRemoveByName = &Node::RemoveFormatPresetByName;
    static constexpr auto kRemove = &Node::RemoveFormatPreset;
    static constexpr auto kRemoveAt = &Node::RemoveFormatPresetAt;
    static constexpr auto kRemoveAllAt = &Node::RemoveFormatPresetsAt;
    static constexpr auto kRemoveAll = &Node::RemoveFormatPresets;
    static constexpr auto kMove = &Node::MoveFormatPreset;
    static constexpr auto kMoveAll = &Node::MoveFormatPresets;
    static constexpr auto kClear = &Node::ClearFormatPresets;
    static constexpr auto kFind = &Node::FindFormatPreset;
    static constexpr auto kIndexOf = &Node::IndexOfFormatPreset;
    static constexpr auto kIndexOfName = &Node::IndexOfFormatPresetByName;
    static constexpr Handle (Node::*kFirst)() = &Node::FirstFormatPreset;
    static constexpr ConstHandle (Node::*kConstFirst)() const = &Node::FirstFormatPreset;
    static constexpr Handle (Node::*kLast)() = &Node::LastFormatPreset;
    static constexpr ConstHandle (Node::*kConstLast)() const = &Node::LastFormatPreset;
};

/// The same of its children.
struct ChildFamily
{
    using Node = IVXFormatNode;
    using Element = IVXFormatNode;
    using Handle = std::shared_ptr<Element>;
    using ConstHandle = std::shared_ptr<const Element>;

    static Handle Make(const std::string& name)
    {
        auto node = IVXFormatNode::MallocFormatNode(Handle());
        node->SetName(name);
        return node;
    }

    static constexpr const char* kName = "Children";
    static constexpr auto kCount = &Node::ChildCount;
    static constexpr Handle (Node::*kGet)(int) = &Node::GetChild;
    static constexpr ConstHandle (Node::*kConstGet)(int) const = &Node::GetChild;
    static constexpr auto kAdd = &Node::AddChild;
    static constexpr auto kSetList = &Node::SetChildList;
    static constexpr auto kInsert = &Node::InsertChild;
    static constexpr auto kInsertAll = &Node::InsertChildren;
    static constexpr auto kRemoveByName = &Node::RemoveChildByName;
    static constexpr auto kRemove = &Node::RemoveChild;
    static constexpr auto kRemoveAt = &Node::RemoveChildAt;
    static constexpr auto kRemoveAllAt = &Node::RemoveChildrenAt;
    static constexpr auto kRemoveAll = &Node::RemoveChildren;
    static constexpr auto kMove = &Node::MoveChild;
    static constexpr auto kMoveAll = &Node::MoveChildren;
    static constexpr auto kClear = &Node::ClearChildren;
    static constexpr auto kFind = &Node::FindChild;
    static constexpr auto kIndexOf = &Node::IndexOfChild;
    static constexpr auto kIndexOfName = &Node::IndexOfChildByName;
    static constexpr Handle (Node::*kFirst)() = &Node::FirstChild;
    static constexpr ConstHandle (Node::*kConstFirst)() const = &Node::FirstChild;
    static constexpr Handle (Node::*kLast)() = &Node::LastChild;
    static constexpr ConstHandle (Node::*kConstLast)() const = &Node::LastChild;
};

/// A node with one of its two lists under test, filled with elements of one letter each.
template <class Family>
class NodeList
{
public:
    using Handle = typename Family::Handle;

    explicit NodeList(std::string_view letters)
    {
        for (const char letter : letters)
            (*this)(Family::kAdd, Family::Make(std::string(1, letter)));
    }

    template <class Operation, class... Arguments>
    auto operator()(Operation operation, const Arguments&... arguments) const
    {
        return ((*m_node).*operation)(arguments...);
    }

    const IVXFormatNode& Const() const { return *m_node; }
    Handle At(int index) const { return (*this)(Family::kGet, index); }

    /// The names of the elements, one behind the other.
    std::string Text() const
    {
        std::string text;
        const int count = (*this)(Family::kCount);
        for (int i = 0; i < count; ++i)
            text += At(i)->Name();
        return text;
    }

    /// All elements, in order.
    std::vector<Handle> Elements() const
    {
        std::vector<Handle> elements;
        const int count = (*this)(Family::kCount);
        elements.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i)
            elements.push_back(At(i));
        return elements;
    }

private:
    std::shared_ptr<IVXFormatNode> m_node = ChildFamily::Make("node");
};

/// Both families, for tests that hold of each.
using Families = testing::Types<PresetFamily, ChildFamily>;

/// Names a family in the names of its tests.
struct FamilyName
{
    template <class Family>
    static std::string GetName(int)
    {
        return Family::kName;
    }
};

} // namespace Vexlor
