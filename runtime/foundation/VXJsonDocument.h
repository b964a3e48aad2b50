#pragma once

#include "runtime/foundation/VXJsonNode.h"

#include <simdjson.h>

#include <vector>

namespace Vexlor
{

class VXJsonDocument;

/// One value of a parsed document. Words are those of simdjson's tape: a type in the highest byte and a
/// payload below it; a member's name is the word before its value.
class VXJsonView final : public VXJsonReadOnly<VXJsonView>
{
public:
    constexpr VXJsonView(const VXJsonDocument* document, const std::uint64_t* word)
        : m_document(document), m_word(word)
    {
    }

    /// The member of that name, the first of several; Absent when there is none.
    JsonItem Find(std::string_view name) const;

    JsonItem Self() const override;
    bool Next(std::size_t& cursor, JsonEntry& entry) const override;

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view name) const override;
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view name) const override;
    int Size() const override;
    std::shared_ptr<const IVXJsonValue> At(int index) const override;

private:
    friend class VXJsonDocument;

    bool IsA(char type) const { return static_cast<char>(*m_word >> 56) == type; }
    std::string_view Text(std::uint64_t word) const;
    const VXJsonView& Child(std::size_t index) const;
    const VXJsonView* FindView(std::string_view name) const;
    std::shared_ptr<const IVXJsonValue> Handle() const;

    const VXJsonDocument* m_document;
    const std::uint64_t* m_word;
    std::uint32_t m_first = 0; // the place of the first child in the document's views
    std::uint32_t m_count = 0;
};

static_assert(sizeof(VXJsonView) <= 32, "a document holds a view for each of its values");

/// What simdjson parsed, and a view for each value of it, level by level: the children of a container stand
/// next to each other, so that each is found by its number.
class VXJsonDocument final : public std::enable_shared_from_this<VXJsonDocument>
{
public:
    /// Behind the text lie simdjson::SIMDJSON_PADDING more bytes.
    simdjson::error_code Parse(std::string_view text);

    /// After a successful Parse.
    std::shared_ptr<const IVXJsonValue> Root() const;

private:
    friend class VXJsonView;

    simdjson::error_code BuildViews();
    void AppendChildren(std::size_t parent);

    simdjson::dom::document m_document;
    std::vector<VXJsonView> m_views;
};

/// Reads a whole text, as ParseJson; behind it lie simdjson::SIMDJSON_PADDING more bytes.
std::shared_ptr<const IVXJsonValue> ParsePadded(std::string_view text, std::string* error);

} // namespace Vexlor
