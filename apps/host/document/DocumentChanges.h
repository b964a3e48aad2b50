#pragma once

#include "DocumentTree.h"

#include <set>
#include <string>
#include <vector>

namespace Vexlor::Tool
{

/// Changes of a document's text that are made at once, each in terms of the text as it is. Whatever is not
/// named stays as it stands, byte by byte: members that nobody reads, the order of members, the layout.
///
/// Texts that are put in have line ends as JsonText indents them; they are fitted to the place. Changes of
/// one value and of what is inside of it exclude each other.
class DocumentChanges
{
public:
    explicit DocumentChanges(const DocumentTree& tree);

    /// Puts a text in the place of a value.
    void Replace(DocumentPosition value, const std::string& text);
    /// Puts elements into an array, in front of the one of that number; behind the last one where there is
    /// none.
    void Insert(DocumentPosition array, std::uint32_t ordinal, const std::vector<std::string>& elements);
    /// Takes the elements of those numbers out of an array.
    void Remove(DocumentPosition array, const std::set<std::uint32_t>& ordinals);
    /// Makes an array hold those elements and no others.
    void Refill(DocumentPosition array, const std::vector<std::string>& elements);
    /// Gives the object's member of that name that value; a member that is not there is put behind the last.
    void SetMember(DocumentPosition object, const std::string& name, const std::string& text);

    /// The text of a value without the indentation of its place, to put it into another one.
    std::string Lifted(DocumentPosition value) const;

    /// True while nothing is to be changed.
    bool IsEmpty() const { return m_changes.empty(); }
    /// The text with all changes made.
    std::string Text() const;

private:
    struct Change
    {
        std::size_t begin;
        std::size_t end;
        std::string text;
    };

    void Add(std::size_t begin, std::size_t end, std::string text);
    std::vector<DocumentPosition> Inside(DocumentPosition container) const;
    std::string Indentation(std::size_t offset) const;
    bool StartsLine(std::size_t offset) const;
    std::string InnerBlanks(DocumentPosition container) const;
    std::string OuterBlanks(DocumentPosition value) const;

    const DocumentTree& m_tree;
    std::string m_lineEnd; // of the document; empty where it is on one line
    std::vector<Change> m_changes;
};

/// The text as a JSON string.
std::string JsonQuoted(const std::string& text);

} // namespace Vexlor::Tool
