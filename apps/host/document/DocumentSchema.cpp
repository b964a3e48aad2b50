#include "DocumentSchema.h"

#include "apps/host/Text.h"

#include <valijson/adapters/rapidjson_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

#include <array>
#include <limits>
#include <map>

namespace Vexlor::Tool
{

namespace
{

using Json = rapidjson::Value;
using Adapter = valijson::adapters::RapidJsonAdapter;

constexpr std::string_view kReference = "#/definitions/";

std::string_view TextOf(const Json& json) { return {json.GetString(), json.GetStringLength()}; }

rapidjson::Document Parsed(std::string_view text)
{
    rapidjson::Document document;
    document.Parse(text.data(), text.size());
    return document;
}

/// A schema that is nothing but one definition of the document's.
std::unique_ptr<valijson::Schema> SchemaOf(const rapidjson::Document& all, const std::string& definition)
{
    rapidjson::Document document;
    document.SetObject();
    document.AddMember("definitions", Json(all["definitions"], document.GetAllocator()),
                       document.GetAllocator());
    const auto reference = std::string(kReference) + definition;
    document.AddMember("$ref", Json(reference.c_str(), document.GetAllocator()), document.GetAllocator());
    auto schema = std::make_unique<valijson::Schema>();
    valijson::SchemaParser parser;
    parser.populateSchema(Adapter(document), *schema);
    return schema;
}

std::string ListOf(const Json& numbers)
{
    std::vector<std::string> texts;
    for (const auto& number : numbers.GetArray())
        texts.push_back(std::to_string(number.GetInt()));
    return "one of " + Joined(texts, ", ");
}

std::string IntegerText(const Json& member)
{
    if (member.HasMember("enum"))
        return ListOf(member["enum"]);
    if (!member.HasMember("minimum"))
        return "an integer of 64 bits";
    const auto lowest = member["minimum"].GetInt();
    if (lowest == std::numeric_limits<int>::min())
        return "an integer of 32 bits";
    return "an integer from " + std::to_string(lowest) + " to " + std::to_string(member["maximum"].GetInt());
}

std::string ExpectedText(const Json& member)
{
    const auto type = member.HasMember("type") ? TextOf(member["type"]) : "object";
    if (type == "integer")
        return IntegerText(member);
    if (type == "string")
        return "a text";
    return type == "array" ? "a list of objects" : "an object";
}

std::string DefinitionOf(const Json& reference)
{
    return std::string(TextOf(reference["$ref"]).substr(kReference.size()));
}

using Objects = std::map<std::string, SchemaObject*, std::less<>>;

void AddMembers(SchemaObject& object, const Json& definition, const Objects& objects)
{
    for (const auto& [name, value] : definition["properties"].GetObject())
    {
        SchemaMember member{std::string(TextOf(name)), ExpectedText(value)};
        member.isList = value.HasMember("items");
        if (member.isList || value.HasMember("$ref"))
            member.object = objects.at(DefinitionOf(member.isList ? value["items"] : value));
        object.names.push_back(member.name);
        object.members.push_back(std::move(member));
    }
}

/// What stands in the way of its parents too is told with the value that is at fault, and only there.
bool IsCause(const valijson::ValidationResults::Error& error)
{
    constexpr std::array<std::string_view, 3> kCauses{"Value type", "Expected number",
                                                      "Failed to match against any"};
    return std::ranges::any_of(kCauses, [&error](std::string_view cause)
                               { return error.description.starts_with(cause); });
}

/// "[codecID]" of "<root>[codecID]", without the brackets.
std::string MemberOf(const valijson::ValidationResults::Error& error)
{
    if (error.context.size() < 2)
        return {};
    const auto& step = error.context[1];
    return step.substr(1, step.size() - 2);
}

} // namespace

DocumentSchema::DocumentSchema()
{
    const auto document = Parsed(DocumentSchemaText());
    Objects objects;
    for (const auto& definition : document["definitions"].GetObject())
    {
        const std::string name(TextOf(definition.name));
        objects[name] = m_objects.emplace_back(std::make_unique<SchemaObject>()).get();
        objects[name]->schema = SchemaOf(document, name);
    }
    for (const auto& definition : document["definitions"].GetObject())
        AddMembers(*objects.find(TextOf(definition.name))->second, definition.value, objects);
    m_root = objects.at(DefinitionOf(document["allOf"][0]));
}

DocumentSchema::~DocumentSchema() = default;

std::vector<std::string> DocumentSchema::MisfitsOf(const SchemaObject& object, const rapidjson::Value& value)
{
    valijson::Validator validator;
    const Adapter adapter(value);
    if (validator.validate(*object.schema, adapter, nullptr))
        return {};
    valijson::ValidationResults results;
    validator.validate(*object.schema, adapter, &results);
    std::vector<std::string> names;
    for (const auto& error : results)
        if (IsCause(error))
            names.push_back(MemberOf(error));
    return names;
}

} // namespace Vexlor::Tool
