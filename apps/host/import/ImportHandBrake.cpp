#include "ImportHandBrake.h"

#include "HandBrakePreset.h"
#include "ImportedPreset.h"
#include "apps/host/Failure.h"
#include "apps/host/Text.h"
#include "apps/host/document/DocumentFile.h"
#include "apps/host/document/DocumentTree.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <optional>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kChildren = "ChildrenArray";
constexpr int kMostFolders = 32; // one in another; the path of each preset is as long

/// Reads a list of presets and folders.
class ListReader
{
public:
    ListReader(const std::string& name, const DocumentTree& tree, Import& import)
        : m_name(name), m_tree(tree), m_import(import)
    {
    }

    void Read(DocumentPosition list, const std::shared_ptr<IVXFormatNode>& node, const std::string& path,
              int depth)
    {
        if (depth > kMostFolders)
            throw Failure(m_name + ": folders lie deeper than " + std::to_string(kMostFolders) +
                          " in each other");
        m_tree.ForEach(list, [&](DocumentPosition element) { ReadElement(element, node, path, depth); });
    }

private:
    void ReadElement(DocumentPosition element, const std::shared_ptr<IVXFormatNode>& node,
                     const std::string& path, int depth)
    {
        const auto isFolder = m_tree.Find(element, "Folder");
        if (m_tree.CountIn(element, kChildren) > 0 || (isFolder && m_tree.Source(*isFolder) == "true"))
            ReadFolder(element, node, path, depth);
        else
            ReadPreset(element, node, path);
    }

    void ReadFolder(DocumentPosition folder, const std::shared_ptr<IVXFormatNode>& node,
                    const std::string& path, int depth)
    {
        const auto name = NameOf(folder, path);
        const auto child = IVXFormatNode::MallocFormatNode(node);
        child->SetName(name);
        child->SetDescription(m_tree.FindText(folder, "PresetDescription").value_or(""));
        if (const auto children = m_tree.Find(folder, kChildren))
            Read(*children, child, path + PathEscaped(name) + '/', depth + 1);
    }

    void ReadPreset(DocumentPosition preset, const std::shared_ptr<IVXFormatNode>& node,
                    const std::string& path)
    {
        if (++m_presets > kMostImported)
            throw Failure(m_name + ": more than " + std::to_string(kMostImported) + " presets");
        const auto name = NameOf(preset, path);
        ImportedPreset target(m_import.findings, path + PathEscaped(name));
        if (m_tree[preset].kind != DocumentKind::Object)
            return target.LeaveOut({{}, m_tree[preset].begin}, "is no preset");
        ReadHandBrakePreset(m_tree, preset, target);
        if (!target.Preset())
            return;
        target.Preset()->SetName(name);
        node->AddFormatPreset(target.Preset());
    }

    std::string NameOf(DocumentPosition element, const std::string& path)
    {
        const auto name = m_tree.FindText(element, "PresetName").value_or("");
        return ImportedName(name, path, m_tree[element].begin, m_import.findings);
    }

    const std::string& m_name;
    const DocumentTree& m_tree;
    Import& m_import;
    int m_presets = 0;
};

} // namespace

void ImportHandBrake(const std::string& name, std::string_view text, Import& import)
{
    if (const auto fault = SyntaxFaultOf(text))
        throw Failure(name + ':' + std::to_string(fault->place.line) + ':' +
                      std::to_string(fault->place.column) + ": " + fault->reason);
    const DocumentTree tree(text);
    ListReader reader(name, tree, import);
    const auto list =
        tree[0].kind == DocumentKind::Array ? std::optional(DocumentPosition{0}) : tree.Find(0, "PresetList");
    if (!list || tree[*list].kind != DocumentKind::Array)
        throw Failure(name + ": has no \"PresetList\", as files that HandBrake exports have");
    reader.Read(*list, import.root, {}, 0);
}

} // namespace Vexlor::Tool
