#pragma once

#include <rapidjson/document.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace valijson
{
class Schema;
}

namespace Vexlor::Tool
{

struct SchemaObject;

/// One member of a kind of object.
struct SchemaMember
{
    std::string name;
    std::string expected;                 ///< its values, in words: "an integer"
    const SchemaObject* object = nullptr; ///< what it is, or a list of; empty for a scalar
    bool isList = false;
};

/// One kind of object: a category, a format preset, a resolution.
struct SchemaObject
{
    std::vector<SchemaMember> members;
    std::vector<std::string> names; ///< those of the members
    std::unique_ptr<valijson::Schema> schema;
};

/// The schema of preset documents: which members each kind of object has, and what they may be.
class DocumentSchema
{
public:
    /// The one that is built in.
    DocumentSchema();
    DocumentSchema(const DocumentSchema&) = delete;
    DocumentSchema& operator=(const DocumentSchema&) = delete;
    ~DocumentSchema();

    /// The kind of the whole document.
    const SchemaObject& Root() const { return *m_root; }

    /// The names of the members that are not as they have to be; an empty one stands for the value itself.
    static std::vector<std::string> MisfitsOf(const SchemaObject& object, const rapidjson::Value& value);

private:
    std::vector<std::unique_ptr<SchemaObject>> m_objects;
    const SchemaObject* m_root = nullptr;
};

/// The text of the schema, which is also installed as a file.
std::string_view DocumentSchemaText();

} // namespace Vexlor::Tool
