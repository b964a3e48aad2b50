#pragma once

#include "runtime/foundation/VXJsonNode.h"

#include <string>
#include <vector>

namespace Vexlor
{

class VXJsonDocument;

/// A member of an object of a parsed document.
struct JsonDocumentMember
{
    static constexpr std::uint32_t kInteger = 0xFFFFFFFF;

    bool IsContainer() const { return length == 0; }

    std::uint32_t name; ///< where it begins in the text
    std::uint32_t nameLength;
    std::uint32_t value;  ///< the number of a container's view; where a scalar begins in the text
    std::uint32_t length; ///< a scalar's; kInteger says that value is an integer of 32 bits itself
};

/// One value of a parsed document.
class VXJsonView final : public VXJsonReadOnly<VXJsonView>
{
public:
    /// An object, whose members begin at first; an array, whose elements' views do; or as Text a scalar, with
    /// value and length as a member has them.
    VXJsonView(const VXJsonDocument& document, JsonKind kind, std::size_t first, std::size_t count)
        : m_document(&document), m_kind(kind), m_first(static_cast<std::uint32_t>(first)),
          m_count(static_cast<std::uint32_t>(count))
    {
    }

    std::shared_ptr<const IVXJsonValue> Handle() const;
    /// The member of that name, the first of several; Absent when there is none.
    JsonItem Find(std::string_view name) const;

    JsonItem Self() const override;
    bool Next(JsonCursor& cursor, JsonEntry& entry) const override;

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view name) const override;
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view name) const override;
    int Size() const override;
    std::shared_ptr<const IVXJsonValue> At(int index) const override;

private:
    const JsonDocumentMember* FindMember(std::string_view name) const;
    const VXJsonView& View(std::size_t number) const;
    JsonItem Item(const JsonDocumentMember& member) const;
    const char* Text() const;

    const VXJsonDocument* m_document;
    JsonKind m_kind;
    std::uint32_t m_first;
    std::uint32_t m_count;
};

static_assert(sizeof(VXJsonView) <= 32, "a document holds a view for each of its containers and elements");

/// The members of objects, those of one next to each other, and the views of containers and of the elements
/// of arrays, those of one array next to each other; the last one is the root's.
struct JsonContent
{
    std::vector<JsonDocumentMember> members;
    std::vector<VXJsonView> views;
};

/// A text and what it holds. Strings stand in it without escape sequences; what they leave free behind them
/// is not looked at.
class VXJsonDocument final : public std::enable_shared_from_this<VXJsonDocument>
{
public:
    /// False when the text, which Text tells then, is no JSON.
    bool Read(std::string text);

    std::string_view Text() const { return {m_text.data(), m_size}; }
    /// After a successful Read.
    std::shared_ptr<const IVXJsonValue> Root() const;

private:
    friend class VXJsonView;

    std::string m_text; // and room for the parser
    std::size_t m_size = 0;
    JsonContent m_content;
};

/// Reads a whole text, as ParseJson, and keeps it. Throws std::bad_alloc when memory is short.
std::shared_ptr<const IVXJsonValue> ParseOwnJson(std::string text, std::string* error);

} // namespace Vexlor
