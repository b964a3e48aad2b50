#pragma once

#include "VXExport.h"

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

class IVXFormatPreset;
class IVXJsonValue;

/// A category of the catalogue that a user browses: a name, a description, an icon, an ordered list of format
/// presets and an ordered list of child categories.
///
/// A node owns its children and knows its parent only weakly, so a tree lives as long as its root is held.
/// The parent link is set by the factories and by SetParent; the list operations never touch it. Both list
/// families are the same operations: positions count from 0, names compare byte for byte, handles compare by
/// identity. Empty handles in lists given to a node are left out.
class VX_PRESETS_API IVXFormatNode
{
public:
    /// Everything that Clone can copy: own fields and parent link (1), format presets (2), children (4).
    static constexpr int CloneAll = 7;

    /// A new empty node, appended to the parent's children; an empty parent makes a root.
    static std::shared_ptr<IVXFormatNode> MallocFormatNode(std::shared_ptr<IVXFormatNode> parent);
    /// A node and its whole subtree, read from a JSON object; absent members are empty, and an
    /// empty handle reads as an object without members. Never empty itself.
    static std::shared_ptr<IVXFormatNode> MallocFormatNode(const std::shared_ptr<const IVXJsonValue>& json);

    /// The node whose child this is; empty for a root and when that node is gone.
    virtual std::shared_ptr<IVXFormatNode> Parent() = 0;
    /// The same, read only.
    virtual std::shared_ptr<const IVXFormatNode> Parent() const = 0;
    /// Stores the parent link, weakly; an empty handle clears it. The parent's children stay as they are.
    virtual void SetParent(std::shared_ptr<IVXFormatNode> parent) = 0;
    /// Key of the node's icon in the artwork file; 0 for none.
    virtual int FaceID() const = 0;
    /// Stores the key of the icon.
    virtual void SetFaceID(int faceID) = 0;
    /// The name to show.
    virtual std::string Name() const = 0;
    /// The description to show.
    virtual std::string Description() const = 0;
    /// Stores the name.
    virtual void SetName(const std::string& name) = 0;
    /// Stores the description.
    virtual void SetDescription(const std::string& description) = 0;
    /// A new node with what the flags ask for; format presets and children are copied deeply. Flag 1 copies
    /// the parent link without adding the copy to that parent. Deliberately, copied children keep their
    /// source's parent link: call SetParent on them where the copy is to be their parent.
    virtual std::shared_ptr<IVXFormatNode> Clone(int flags) const = 0;
    /// A new object of the whole subtree that the JSON factory reads back.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

    /// Number of format presets.
    virtual int FormatPresetCount() const = 0;
    /// The format preset at idx; empty when there is none, and idx at or beyond the count is logged.
    virtual std::shared_ptr<IVXFormatPreset> GetFormatPreset(int idx) = 0;
    /// The same, read only and never logged.
    virtual std::shared_ptr<const IVXFormatPreset> GetFormatPreset(int idx) const = 0;
    /// Appends the format preset.
    virtual void AddFormatPreset(std::shared_ptr<IVXFormatPreset> preset) = 0;
    /// Replaces the whole list.
    virtual void SetFormatPresetList(std::vector<std::shared_ptr<IVXFormatPreset>> presets) = 0;
    /// Inserts before idx; beyond the count at the end, below 0 at the front.
    virtual void InsertFormatPreset(std::shared_ptr<IVXFormatPreset> preset, int idx) = 0;
    /// Inserts all, in their order, before idx; clamped as above.
    virtual void InsertFormatPresets(std::vector<std::shared_ptr<IVXFormatPreset>> presets, int idx) = 0;
    /// Removes the first of that name; false when there is none.
    virtual bool RemoveFormatPresetByName(const std::string& name) = 0;
    /// Removes that very format preset; false when it is not in the list.
    virtual bool RemoveFormatPreset(std::shared_ptr<IVXFormatPreset> preset) = 0;
    /// Removes the one at idx; false when there is none.
    virtual bool RemoveFormatPresetAt(int idx) = 0;
    /// Removes those at the given positions; false, and nothing happens, when none of them exists.
    virtual bool RemoveFormatPresetsAt(std::vector<int> indices) = 0;
    /// Removes each of those very format presets; true when at least one was in the list.
    virtual bool RemoveFormatPresets(std::vector<std::shared_ptr<IVXFormatPreset>> presets) = 0;
    /// Moves the one at from to just before the one at to; to is clamped to the list. Throws
    /// std::out_of_range when there is none at from.
    virtual void MoveFormatPreset(int from, int to) = 0;
    /// Moves those at the given positions, in list order, to just before the first other one at or behind to;
    /// nothing happens when to is negative or beyond the count. Positions that do not exist are ignored.
    virtual void MoveFormatPresets(std::vector<int> indices, int to) = 0;
    /// Empties the list.
    virtual void ClearFormatPresets() = 0;
    /// The first of that name; empty when there is none.
    virtual std::shared_ptr<IVXFormatPreset> FindFormatPreset(const std::string& name) = 0;
    /// Position of that very format preset (identity, not equality), or -1.
    virtual int IndexOfFormatPreset(std::shared_ptr<const IVXFormatPreset> preset) const = 0;
    /// Position of the first of that name, or -1.
    virtual int IndexOfFormatPresetByName(const std::string& name) const = 0;

    /// Number of children.
    virtual int ChildCount() const = 0;
    /// The child at idx; empty when there is none.
    virtual std::shared_ptr<IVXFormatNode> GetChild(int idx) = 0;
    /// The same, read only.
    virtual std::shared_ptr<const IVXFormatNode> GetChild(int idx) const = 0;
    /// A copy of the list of children.
    virtual std::vector<std::shared_ptr<IVXFormatNode>> GetChildList() = 0;
    /// The same, read only.
    virtual std::vector<std::shared_ptr<const IVXFormatNode>> GetChildList() const = 0;
    /// Appends the child.
    virtual void AddChild(std::shared_ptr<IVXFormatNode> child) = 0;
    /// Replaces the whole list.
    virtual void SetChildList(std::vector<std::shared_ptr<IVXFormatNode>> children) = 0;
    /// Inserts before idx; beyond the count at the end, below 0 at the front.
    virtual void InsertChild(std::shared_ptr<IVXFormatNode> child, int idx) = 0;
    /// Inserts all, in their order, before idx; clamped as above.
    virtual void InsertChildren(std::vector<std::shared_ptr<IVXFormatNode>> children, int idx) = 0;
    /// Removes the first of that name; false when there is none.
    virtual bool RemoveChildByName(const std::string& name) = 0;
    /// Removes that very child; false when it is not in the list.
    virtual bool RemoveChild(std::shared_ptr<IVXFormatNode> child) = 0;
    /// Removes the one at idx; false when there is none.
    virtual bool RemoveChildAt(int idx) = 0;
    /// Removes those at the given positions; false, and nothing happens, when none of them exists.
    virtual bool RemoveChildrenAt(std::vector<int> indices) = 0;
    /// Removes each of those very children; true when at least one was in the list.
    virtual bool RemoveChildren(std::vector<std::shared_ptr<IVXFormatNode>> children) = 0;
    /// Moves the one at from to just before the one at to; to is clamped to the list. Throws
    /// std::out_of_range when there is none at from.
    virtual void MoveChild(int from, int to) = 0;
    /// Moves those at the given positions, in list order, to just before the first other one at or behind to;
    /// nothing happens when to is negative or beyond the count. Positions that do not exist are ignored.
    virtual void MoveChildren(std::vector<int> indices, int to) = 0;
    /// Empties the list.
    virtual void ClearChildren() = 0;
    /// The first of that name; empty when there is none.
    virtual std::shared_ptr<IVXFormatNode> FindChild(const std::string& name) = 0;
    /// Position of that very child (identity, not equality), or -1.
    virtual int IndexOfChild(std::shared_ptr<const IVXFormatNode> child) const = 0;
    /// Position of the first of that name, or -1.
    virtual int IndexOfChildByName(const std::string& name) const = 0;

    /// The first format preset; empty when there is none, as for all that follow.
    std::shared_ptr<IVXFormatPreset> FirstFormatPreset();
    /// The same, read only.
    std::shared_ptr<const IVXFormatPreset> FirstFormatPreset() const;
    /// The last format preset.
    std::shared_ptr<IVXFormatPreset> LastFormatPreset();
    /// The same, read only.
    std::shared_ptr<const IVXFormatPreset> LastFormatPreset() const;
    /// The first child.
    std::shared_ptr<IVXFormatNode> FirstChild();
    /// The same, read only.
    std::shared_ptr<const IVXFormatNode> FirstChild() const;
    /// The last child.
    std::shared_ptr<IVXFormatNode> LastChild();
    /// The same, read only.
    std::shared_ptr<const IVXFormatNode> LastChild() const;

protected:
    ~IVXFormatNode() = default;
};

} // namespace Vexlor
