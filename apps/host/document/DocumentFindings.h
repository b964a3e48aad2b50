#pragma once

#include "DocumentTree.h"

#include <array>

namespace Vexlor::Tool
{

/// What is wrong, and what was expected in its place; nothing for the latter where the former says it all.
struct DocumentWording
{
    std::string what;
    std::string expected = {};
};

/// Where a finding points to.
enum class FindingPlace
{
    Value,
    Name, ///< of a member
};

/// One thing that a document has wrong.
struct DocumentFinding
{
    bool isError = false; ///< else a warning
    const char* rule = "";
    DocumentPosition value = 0;
    std::size_t offset = 0; ///< in bytes
    DocumentWording wording;
};

/// Everything that a document has wrong. All of it is counted; the first thousand errors and the first
/// thousand warnings are worded and kept.
class DocumentFindings
{
public:
    explicit DocumentFindings(const DocumentTree& tree) : m_tree(tree) {}

    /// Adds an error; word is asked for a DocumentWording if that is kept.
    template <typename Word>
    void Error(const char* rule, DocumentPosition value, Word word, FindingPlace place = FindingPlace::Value)
    {
        Add(true, rule, value, word, place);
    }

    /// Adds a warning.
    template <typename Word>
    void Warn(const char* rule, DocumentPosition value, Word word, FindingPlace place = FindingPlace::Value)
    {
        Add(false, rule, value, word, place);
    }

    std::size_t Errors() const { return m_counts[1]; }
    std::size_t Warnings() const { return m_counts[0]; }
    /// Those that are kept, in the order of the text.
    std::vector<DocumentFinding> Sorted() const;

private:
    static constexpr std::size_t kMostKept = 1000;

    template <typename Word>
    void Add(bool isError, const char* rule, DocumentPosition value, Word word, FindingPlace place)
    {
        if (++m_counts[isError ? 1 : 0] <= kMostKept)
            m_kept.push_back({isError, rule, value, OffsetOf(value, place), word()});
    }

    std::size_t OffsetOf(DocumentPosition value, FindingPlace place) const;

    const DocumentTree& m_tree;
    std::array<std::size_t, 2> m_counts{};
    std::vector<DocumentFinding> m_kept;
};

} // namespace Vexlor::Tool
