#pragma once

#include "tree/VXNamedList.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

namespace Vexlor
{

/// The tree node. Nothing in it descends by recursion, so a tree may be deeper than the stack.
class VXFormatNode final : public IVXFormatNode
{
public:
    VXFormatNode() = default;
    VXFormatNode(const VXFormatNode&) = delete;
    VXFormatNode& operator=(const VXFormatNode&) = delete;
    ~VXFormatNode();

    std::shared_ptr<IVXFormatNode> Parent() override { return m_parent.lock(); }
    std::shared_ptr<const IVXFormatNode> Parent() const override { return m_parent.lock(); }
    void SetParent(std::shared_ptr<IVXFormatNode> parent) override { m_parent = parent; }
    int FaceID() const override { return m_faceID; }
    void SetFaceID(int faceID) override { m_faceID = faceID; }
    std::string Name() const override { return m_name; }
    std::string Description() const override { return m_description; }
    void SetName(const std::string& name) override { m_name = name; }
    void SetDescription(const std::string& description) override { m_description = description; }
    std::shared_ptr<IVXFormatNode> Clone(int flags) const override;
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

    int FormatPresetCount() const override { return m_formatPresets.Count(); }
    std::shared_ptr<IVXFormatPreset> GetFormatPreset(int idx) override;
    std::shared_ptr<const IVXFormatPreset> GetFormatPreset(int idx) const override
    {
        return m_formatPresets.At(idx);
    }
    void AddFormatPreset(std::shared_ptr<IVXFormatPreset> preset) override
    {
        m_formatPresets.Add(std::move(preset));
    }
    void SetFormatPresetList(HandleList<IVXFormatPreset> presets) override
    {
        m_formatPresets.Set(std::move(presets));
    }
    void InsertFormatPreset(std::shared_ptr<IVXFormatPreset> preset, int idx) override
    {
        m_formatPresets.Insert({preset}, idx);
    }
    void InsertFormatPresets(HandleList<IVXFormatPreset> presets, int idx) override
    {
        m_formatPresets.Insert(presets, idx);
    }
    bool RemoveFormatPresetByName(const std::string& name) override
    {
        return m_formatPresets.RemoveAt(m_formatPresets.IndexOfName(name));
    }
    bool RemoveFormatPreset(std::shared_ptr<IVXFormatPreset> preset) override
    {
        return m_formatPresets.RemoveEach({preset});
    }
    bool RemoveFormatPresetAt(int idx) override { return m_formatPresets.RemoveAt(idx); }
    bool RemoveFormatPresetsAt(std::vector<int> indices) override
    {
        return m_formatPresets.RemoveAt(indices);
    }
    bool RemoveFormatPresets(HandleList<IVXFormatPreset> presets) override
    {
        return m_formatPresets.RemoveEach(presets);
    }
    void MoveFormatPreset(int from, int to) override { m_formatPresets.Move(from, to); }
    void MoveFormatPresets(std::vector<int> indices, int to) override { m_formatPresets.Move(indices, to); }
    void ClearFormatPresets() override { m_formatPresets.Clear(); }
    std::shared_ptr<IVXFormatPreset> FindFormatPreset(const std::string& name) override
    {
        return m_formatPresets.Find(name);
    }
    int IndexOfFormatPreset(std::shared_ptr<const IVXFormatPreset> preset) const override
    {
        return m_formatPresets.IndexOf(preset.get());
    }
    int IndexOfFormatPresetByName(const std::string& name) const override
    {
        return m_formatPresets.IndexOfName(name);
    }

    int ChildCount() const override { return m_children.Count(); }
    std::shared_ptr<IVXFormatNode> GetChild(int idx) override { return m_children.At(idx); }
    std::shared_ptr<const IVXFormatNode> GetChild(int idx) const override { return m_children.At(idx); }
    HandleList<IVXFormatNode> GetChildList() override { return m_children.Entries(); }
    HandleList<const IVXFormatNode> GetChildList() const override { return ReadOnly(m_children.Entries()); }
    void AddChild(std::shared_ptr<IVXFormatNode> child) override { m_children.Add(std::move(child)); }
    void SetChildList(HandleList<IVXFormatNode> children) override { m_children.Set(std::move(children)); }
    void InsertChild(std::shared_ptr<IVXFormatNode> child, int idx) override
    {
        m_children.Insert({child}, idx);
    }
    void InsertChildren(HandleList<IVXFormatNode> children, int idx) override
    {
        m_children.Insert(children, idx);
    }
    bool RemoveChildByName(const std::string& name) override
    {
        return m_children.RemoveAt(m_children.IndexOfName(name));
    }
    bool RemoveChild(std::shared_ptr<IVXFormatNode> child) override { return m_children.RemoveEach({child}); }
    bool RemoveChildAt(int idx) override { return m_children.RemoveAt(idx); }
    bool RemoveChildrenAt(std::vector<int> indices) override { return m_children.RemoveAt(indices); }
    bool RemoveChildren(HandleList<IVXFormatNode> children) override
    {
        return m_children.RemoveEach(children);
    }
    void MoveChild(int from, int to) override { m_children.Move(from, to); }
    void MoveChildren(std::vector<int> indices, int to) override { m_children.Move(indices, to); }
    void ClearChildren() override { m_children.Clear(); }
    std::shared_ptr<IVXFormatNode> FindChild(const std::string& name) override
    {
        return m_children.Find(name);
    }
    int IndexOfChild(std::shared_ptr<const IVXFormatNode> child) const override
    {
        return m_children.IndexOf(child.get());
    }
    int IndexOfChildByName(const std::string& name) const override { return m_children.IndexOfName(name); }

private:
    std::weak_ptr<IVXFormatNode> m_parent;
    int m_faceID = 0;
    std::string m_name;
    std::string m_description;
    VXNamedList<IVXFormatPreset> m_formatPresets;
    VXNamedList<IVXFormatNode> m_children;
};

} // namespace Vexlor
