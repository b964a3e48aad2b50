#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor::Tool
{

enum class DocumentKind : std::uint8_t
{
    Null,
    Bool,
    Integer,
    Fraction, ///< a number with a fraction or an exponent
    Text,
    Array,
    Object,
};

/// A value of a document by its number, in the order in which the values stand there; 0 is the root.
using DocumentPosition = std::uint32_t;

/// One value of a document, and where it stands in the text. Offsets are in bytes.
struct DocumentValue
{
    std::uint32_t begin = 0;     ///< of its first byte
    std::uint32_t end = 0;       ///< behind its last byte
    std::uint32_t name = 0;      ///< of the opening quote of its name; 0 where it has none
    std::uint32_t nameSize = 0;  ///< of the name with its quotes
    DocumentPosition parent = 0; ///< the array or object that it is in
    DocumentPosition next = 0;   ///< the first value behind it that is not inside it
    std::uint32_t ordinal = 0;   ///< how many stand before it in its array or object
    std::uint32_t count = 0;     ///< how many stand in it
    DocumentKind kind = DocumentKind::Null;
};

/// A preset document with the place of everything in it, which the runtime's values do not tell.
class DocumentTree
{
public:
    /// Reads a text that ParseJson takes, without a byte order mark. The text must outlive the tree.
    explicit DocumentTree(std::string_view text);

    const DocumentValue& operator[](DocumentPosition value) const { return m_values[value]; }
    /// The whole text.
    std::string_view Text() const { return m_text; }
    /// The bytes of a value.
    std::string_view Source(DocumentPosition value) const;
    /// The name of a member.
    std::string NameOf(DocumentPosition value) const;
    /// True for a member of that name.
    bool IsNamed(DocumentPosition value, std::string_view name) const;

    /// The member that a loader finds: the first of that name.
    std::optional<DocumentPosition> Find(DocumentPosition object, std::string_view name) const;
    /// The member's number as a loader reads it; nothing where it is absent or no integer of 64 bits. A
    /// positive number that needs the 64th bit is taken bit for bit.
    std::optional<std::int64_t> FindInteger(DocumentPosition object, std::string_view name) const;
    /// The member's text; nothing where it is absent or of another kind.
    std::optional<std::string> FindText(DocumentPosition object, std::string_view name) const;
    /// The number of elements of the member; 0 where it is absent or no array.
    std::uint32_t CountIn(DocumentPosition object, std::string_view name) const;

    /// Hands every member or element to use.
    template <typename Use>
    void ForEach(DocumentPosition container, Use use) const
    {
        for (auto value = container + 1; value < m_values[container].next; value = m_values[value].next)
            use(value);
    }

    /// Hands every element of the member to use, none where it is absent or no array.
    template <typename Use>
    void ForEachIn(DocumentPosition object, std::string_view name, Use use) const
    {
        const auto list = Find(object, name);
        if (list && m_values[*list].kind == DocumentKind::Array)
            ForEach(*list, use);
    }

private:
    std::string_view m_text;
    std::vector<DocumentValue> m_values;
};

} // namespace Vexlor::Tool
