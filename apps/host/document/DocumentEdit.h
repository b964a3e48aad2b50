#pragma once

#include "DocumentNames.h"
#include "PresetText.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Vexlor
{
class IVXFormatNode;
}

namespace Vexlor::Tool
{

class DocumentChanges;

/// Where among its siblings something goes; behind the last one where nothing is told.
struct EditPlace
{
    std::optional<std::string> before = {}; ///< name of the sibling
    std::optional<std::string> after = {};
    bool isFirst = false;
};

/// What an edit has done, as people read it.
struct EditOutcome
{
    std::string action; ///< "added"
    std::string path;
    std::string from = {}; ///< the path before, or that of what was copied
    std::vector<PresetSetting> settings = {};
};

/// A preset document that is being edited. Each operation names things by their paths, throws Failure and
/// then changes nothing. What it does not name stays as it stands in the text, members that nobody reads
/// included. No operation leaves two siblings of one kind and name where there were none.
class DocumentEdit
{
public:
    /// Takes a text that ParseJson takes and whose root is an object.
    explicit DocumentEdit(std::string text);

    /// The text as it is now.
    const std::string& Text() const { return *m_text; }

    /// Adds a category of that path. Categories on the way are made where mayMakeParents says so.
    EditOutcome AddCategory(const std::string& path, const PresetSettings& settings, const EditPlace& place,
                            bool mayMakeParents);
    /// Adds a preset of that path, whose text but for its name is given.
    EditOutcome AddPreset(const std::string& path, const std::string& preset, const PresetSettings& settings,
                          const EditPlace& place, bool mayMakeParents);
    /// Adds everything that is below a node: categories of one name become one, presets of one name get a
    /// number behind it. Answers a line for each preset.
    std::vector<EditOutcome> AddAll(const IVXFormatNode& node);
    /// Removes a preset or a category; one that is not empty where mayHoldMore says so.
    EditOutcome Remove(const std::string& path, bool mayHoldMore);
    /// Moves a preset or a category, into another category where one is named.
    EditOutcome Move(const std::string& path, const std::optional<std::string>& category,
                     const EditPlace& place);
    /// Gives a preset or a category another name.
    EditOutcome Rename(const std::string& path, const std::string& name);
    /// Copies a preset or a category, into the category of the user's own presets where none is named; that
    /// one is made where it is missing. Without a name the copy has the same one, with a number if need be.
    EditOutcome Clone(const std::string& path, const std::optional<std::string>& category,
                      const std::optional<std::string>& name, const PresetSettings& settings);
    /// Sets values of a preset, or the description and the face of a category.
    EditOutcome Set(const std::string& path, const PresetSettings& settings);

private:
    struct Parent
    {
        DocumentPosition category;        ///< the last one on the way that is there
        std::vector<std::string> missing; ///< the names of those below it that are not
    };

    using Change = std::function<void(DocumentChanges& changes)>;

    void Read();
    void Make(const Change& change);
    void AddElement(const std::string& path, const char* list, const std::string& element,
                    const EditPlace& place, bool mayMakeParents);
    Parent FindParent(const std::vector<std::string>& names, bool mayMakeParents) const;
    void InsertInto(DocumentChanges& changes, DocumentPosition category, const char* list,
                    const std::vector<std::string>& elements, const EditPlace& place) const;
    std::uint32_t OrdinalOf(DocumentPosition category, const char* list, const EditPlace& place) const;
    void RequireFree(DocumentPosition category, const char* list, const std::string& name) const;
    std::string FreeName(DocumentPosition category, const char* list, const std::string& name) const;
    void Absorb(DocumentChanges& changes, DocumentPosition category, const IVXFormatNode& node,
                std::vector<EditOutcome>& outcomes) const;
    bool Holds(DocumentPosition value, DocumentPosition inner) const;
    DocumentPosition CategoryOf(DocumentPosition value) const;
    DocumentPosition OwnCategory();
    std::string NameOf(DocumentPosition value) const;

    std::unique_ptr<std::string> m_text;    // at one place, for the tree looks at it
    std::unique_ptr<DocumentTree> m_tree;   // empty until it is needed, and after a change
    std::unique_ptr<DocumentNames> m_names; // the same
};

/// The text of a category without anything in it.
std::string EmptyCategory(const std::string& name, int faceID);

} // namespace Vexlor::Tool
