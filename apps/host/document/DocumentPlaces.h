#pragma once

#include "DocumentTree.h"

#include <cstddef>
#include <unordered_map>

namespace Vexlor::Tool
{

/// A place as people and editors count it: both from 1, a column is one character, a tab too.
struct DocumentPlace
{
    int line = 1;
    int column = 1;
};

/// Places in a text, told in rising order: each is counted on from the one before, so that all of them
/// together read the text once.
class DocumentPlaces
{
public:
    explicit DocumentPlaces(std::string_view text) : m_text(text) {}

    /// The place of a byte, which is none before the one that was asked for last.
    DocumentPlace At(std::size_t offset);

private:
    std::string_view m_text;
    std::size_t m_offset = 0;
    DocumentPlace m_place;
};

/// Tells where values stand.
class DocumentPaths
{
public:
    explicit DocumentPaths(const DocumentTree& tree) : m_tree(tree) {}

    /// In names: "Devices/Phone/videoCodecPresets[1]/codecID". Categories and presets go by their names, "\/"
    /// for a slash inside of one; the root has none.
    std::string InNames(DocumentPosition value);
    /// As a JSON pointer (RFC 6901).
    std::string AsPointer(DocumentPosition value) const;

private:
    std::string ElementText(DocumentPosition element);
    std::string MemberText(DocumentPosition member) const;
    std::string NameMember(DocumentPosition object);

    const DocumentTree& m_tree;
    std::unordered_map<DocumentPosition, std::string> m_names; // a name is looked for in its object once
};

} // namespace Vexlor::Tool
