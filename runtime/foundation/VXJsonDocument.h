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
    bool Next(JsonCursor& cursor, JsonEntry& entry) const override;

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view name) const override;
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view name) const override;
    int Size() const override;
    std::shared_ptr<const IVXJsonValue> At(int index) const override;

private:
    friend class VXJsonDocument;

    // A member on the tape, by its name's word, and how many containers stand before it in the object.
    struct Member
    {
        const std::uint64_t* name = nullptr;
        std::size_t containersBefore = 0;
    };

    bool IsA(char type) const { return static_cast<char>(*m_word >> 56) == type; }
    const std::uint64_t* Tape() const;
    const std::uint64_t* End() const;
    std::string_view Text(std::uint64_t word) const;
    Member FindMember(std::string_view name) const;
    const VXJsonView& Child(std::size_t index) const;
    bool NextMember(JsonCursor& cursor, JsonEntry& entry) const;
    bool NextElement(JsonCursor& cursor, JsonEntry& entry) const;
    JsonItem ItemAt(const std::uint64_t* word, std::size_t child) const;
    std::shared_ptr<const IVXJsonValue> Handle() const;
    std::shared_ptr<const IVXJsonValue> ScalarHandle(const std::uint64_t* word) const;

    const VXJsonDocument* m_document;
    const std::uint64_t* m_word;
    std::uint32_t m_first = 0; // the place of the first child that has a view in the document's views
    std::uint32_t m_count = 0; // how many of them there are
};

static_assert(sizeof(VXJsonView) <= 32, "a document holds a view for each of its containers and elements");

/// What simdjson parsed, and views of it. Containers have one, and so have the elements of arrays: that is
/// what handles are asked for. A scalar member is read off the tape. The views of a container's children
/// stand next to each other, so that each is found by its number.
class VXJsonDocument final : public std::enable_shared_from_this<VXJsonDocument>
{
public:
    /// Behind the text lie simdjson::SIMDJSON_PADDING more bytes.
    simdjson::error_code Parse(std::string_view text);

    /// After a successful Parse.
    std::shared_ptr<const IVXJsonValue> Root() const;

private:
    friend class VXJsonView;

    // Places of views that stand next to each other, as far as their children are not yet appended.
    struct Siblings
    {
        std::size_t next;
        std::size_t end;
    };

    simdjson::error_code BuildViews();
    void AppendChildren(std::size_t parent);

    simdjson::dom::document m_document;
    std::vector<VXJsonView> m_views;
};

/// Reads a whole text, as ParseJson; behind it lie simdjson::SIMDJSON_PADDING more bytes.
std::shared_ptr<const IVXJsonValue> ParsePadded(std::string_view text, std::string* error);

} // namespace Vexlor
