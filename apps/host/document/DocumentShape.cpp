#include "DocumentShape.h"

#include "DocumentFindings.h"
#include "DocumentSchema.h"
#include "DocumentTree.h"
#include "apps/host/NameSearch.h"
#include "apps/host/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <unordered_map>
#include <unordered_set>

namespace Vexlor::Tool
{

namespace
{

using Json = rapidjson::Value;

template <typename Number>
bool Set(Json& json, std::string_view digits)
{
    Number number = 0;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (fault != std::errc() || end != digits.data() + digits.size())
        return false;
    json = Json(number);
    return true;
}

/// A number as RapidJSON would have it: an integer where 64 bits hold it.
Json NumberOf(std::string_view digits)
{
    constexpr double kFraction =
        0.5; // the schema asks for integers alone, so that one fraction is as good as any
    Json json;
    if (!Set<std::int64_t>(json, digits) && !Set<std::uint64_t>(json, digits))
        json = Json(kFraction);
    return json;
}

/// The value without what is inside of it.
Json Outline(const DocumentTree& tree, DocumentPosition value)
{
    switch (tree[value].kind)
    {
    case DocumentKind::Null:
        return Json(rapidjson::kNullType);
    case DocumentKind::Bool:
        return Json(tree.Source(value) == "true");
    case DocumentKind::Integer:
    case DocumentKind::Fraction:
        return NumberOf(tree.Source(value));
    case DocumentKind::Text:
        return Json(rapidjson::kStringType);
    case DocumentKind::Array:
        return Json(rapidjson::kArrayType);
    case DocumentKind::Object:
        break;
    }
    return Json(rapidjson::kObjectType);
}

std::string ValueText(const DocumentTree& tree, DocumentPosition value)
{
    constexpr std::size_t kLongest = 40;
    const auto kind = tree[value].kind;
    if (kind == DocumentKind::Object)
        return "is an object";
    if (kind == DocumentKind::Array)
        return "is a list";
    if (tree.Source(value).size() > kLongest)
        return kind == DocumentKind::Text ? "is a text" : "is a longer number";
    return (kind == DocumentKind::Text ? "is the text " : "is ") + OneLine(tree.Source(value));
}

/// The members of one object that the schema has, and where they stand.
struct Members
{
    std::vector<std::pair<const SchemaMember*, DocumentPosition>> found;

    const std::pair<const SchemaMember*, DocumentPosition>* Find(std::string_view name) const
    {
        const auto at =
            std::ranges::find_if(found, [name](const auto& entry) { return entry.first->name == name; });
        return at == found.end() ? nullptr : &*at;
    }
};

/// Made once: reading the schema takes longer than checking a small document.
const DocumentSchema& BuiltInSchema()
{
    static const DocumentSchema s_schema;
    return s_schema;
}

/// Walks the document with the schema. Each object is held against its own part of the schema, without the
/// objects inside of it: what is wrong is found where it stands, and memory does not grow with what is wrong.
class ShapeCheck
{
public:
    ShapeCheck(const DocumentTree& tree, DocumentFindings& findings) : m_tree(tree), m_findings(findings) {}

    void Run() { Check(0, m_schema.Root()); }

private:
    void Check(DocumentPosition value, const SchemaObject& object);
    void CheckObject(DocumentPosition value, const SchemaObject& object);
    Members MembersOf(DocumentPosition value, const SchemaObject& object);
    void CheckValues(DocumentPosition value, const SchemaObject& object, const Members& members);
    void CheckInside(DocumentPosition value, const SchemaMember& member);
    void Unknown(DocumentPosition value, const SchemaObject& object);
    void Repeated(DocumentPosition value);
    void Misfit(DocumentPosition value, const std::string& expected);

    const DocumentTree& m_tree;
    DocumentFindings& m_findings;
    const DocumentSchema& m_schema = BuiltInSchema();
    // The texts of objects that were found right. Documents repeat the same small objects many times.
    std::unordered_map<const SchemaObject*, std::unordered_set<std::string_view>> m_right;
};

void ShapeCheck::Check(DocumentPosition value, const SchemaObject& object)
{
    constexpr std::size_t kLongestKept = 200;
    const auto source = m_tree.Source(value);
    if (source.size() > kLongestKept)
        return CheckObject(value, object);
    auto& right = m_right[&object];
    if (right.contains(source))
        return;
    const auto before = m_findings.Errors() + m_findings.Warnings();
    CheckObject(value, object);
    if (m_findings.Errors() + m_findings.Warnings() == before)
        right.insert(source);
}

void ShapeCheck::CheckObject(DocumentPosition value, const SchemaObject& object)
{
    if (m_tree[value].kind != DocumentKind::Object)
        return CheckValues(value, object, {});
    const auto members = MembersOf(value, object);
    CheckValues(value, object, members);
    for (const auto& [member, position] : members.found)
        if (member->object)
            CheckInside(position, *member);
}

// The next member is looked for behind the one before it first: documents are written in the schema's order.
Members ShapeCheck::MembersOf(DocumentPosition value, const SchemaObject& object)
{
    Members members;
    std::vector<bool> isFound(object.members.size());
    std::size_t guess = 0;
    const auto find = [&](DocumentPosition position)
    {
        const auto count = object.members.size();
        for (std::size_t i = 0; i < count; ++i, guess = guess + 1 < count ? guess + 1 : 0)
            if (m_tree.IsNamed(position, object.members[guess].name))
                return true;
        return false;
    };
    m_tree.ForEach(value,
                   [&](DocumentPosition position)
                   {
                       if (!find(position))
                           return Unknown(position, object);
                       if (isFound[guess])
                           return Repeated(position);
                       isFound[guess] = true;
                       members.found.emplace_back(&object.members[guess], position);
                   });
    return members;
}

void ShapeCheck::CheckValues(DocumentPosition value, const SchemaObject& object, const Members& members)
{
    constexpr std::size_t kMostBytes = 4096;
    alignas(std::max_align_t) std::array<char, kMostBytes> memory;
    rapidjson::MemoryPoolAllocator<> allocator(memory.data(), memory.size());
    auto outline = Outline(m_tree, value);
    for (const auto& [member, position] : members.found)
        outline.AddMember(rapidjson::StringRef(member->name.c_str()), Outline(m_tree, position), allocator);
    for (const auto& name : DocumentSchema::MisfitsOf(object, outline))
        if (const auto* member = members.Find(name))
            Misfit(member->second, member->first->expected);
        else
            Misfit(value, "an object");
}

void ShapeCheck::CheckInside(DocumentPosition value, const SchemaMember& member)
{
    if (!member.isList && m_tree[value].kind == DocumentKind::Object)
        Check(value, *member.object);
    if (member.isList && m_tree[value].kind == DocumentKind::Array)
        m_tree.ForEach(value, [&](DocumentPosition element) { Check(element, *member.object); });
}

void ShapeCheck::Unknown(DocumentPosition value, const SchemaObject& object)
{
    const auto word = [&]
    {
        const auto nearest = NearestName(object.names, m_tree.NameOf(value));
        return DocumentWording{"nobody reads this member", nearest.empty() ? "" : Quoted(nearest)};
    };
    m_findings.Warn("unknown-member", value, word, FindingPlace::Name);
}

void ShapeCheck::Repeated(DocumentPosition value)
{
    m_findings.Error(
        "repeated-member", value, [] { return DocumentWording{"stands here again; only the first is read"}; },
        FindingPlace::Name);
}

void ShapeCheck::Misfit(DocumentPosition value, const std::string& expected)
{
    m_findings.Error("type", value, [&] { return DocumentWording{ValueText(m_tree, value), expected}; });
}

} // namespace

void CheckShape(const DocumentTree& tree, DocumentFindings& findings) { ShapeCheck(tree, findings).Run(); }

} // namespace Vexlor::Tool
