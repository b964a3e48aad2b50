#pragma once

#include "DocumentTree.h"

#include <optional>
#include <string>
#include <vector>

namespace Vexlor::Tool
{

/// The member that holds the presets of a category.
inline constexpr const char* kPresetList = "formatPresetList";
/// The member that holds the categories below one.
inline constexpr const char* kCategoryList = "childList";

/// What a path of names may stand for.
enum class DocumentThing
{
    Preset,
    Category,
    Either,
};

/// Finds categories and presets of a document by their paths of names, as messages tell them:
/// "Devices/Phone", with "\/" for a slash inside a name, "/" for the root. A text that begins with a slash
/// and goes on is a JSON pointer, as vxpresets check --json tells it.
class DocumentNames
{
public:
    explicit DocumentNames(const DocumentTree& tree);

    /// Where the thing of that path, or of that name if there is but one, stands. Throws Failure.
    DocumentPosition Find(const std::string& text, DocumentThing thing) const;
    /// The category below one that has that name; nothing where there is none.
    std::optional<DocumentPosition> FindChild(DocumentPosition category, const std::string& name) const;
    /// True when an element of that list of a category has that name.
    bool IsTaken(DocumentPosition category, const char* list, const std::string& name) const;
    /// The path of a category or a preset; "/" for the root.
    std::string PathOf(DocumentPosition value) const;
    bool IsPreset(DocumentPosition value) const;

private:
    struct Entry
    {
        DocumentPosition value;
        bool isPreset;
        std::string path;
        std::string plain;
        std::string name;
    };

    void Collect(DocumentPosition node, const std::string& path, const std::string& plain);
    void Add(DocumentPosition value, bool isPreset, const std::string& path, const std::string& plain);
    DocumentPosition AtPointer(const std::string& pointer) const;

    const DocumentTree& m_tree;
    std::vector<Entry> m_entries;
};

/// The path of what has that name and stands in the category of that path.
std::string PathBelow(const std::string& category, const std::string& name);

/// The names of a path, without the marks of slashes inside of them.
std::vector<std::string> NamesOfPath(const std::string& path);

} // namespace Vexlor::Tool
