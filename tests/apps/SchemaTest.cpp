#include "RunTool.h"

#include "tests/media/MediaMaker.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "VXMediaCodecs.h"
#include "runtime/foundation/VXJson.h"

#include <rapidjson/document.h>
#include <valijson/adapters/rapidjson_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace Vexlor::Apps
{

namespace
{

using valijson::adapters::RapidJsonAdapter;

rapidjson::Document Parsed(const std::string& text)
{
    rapidjson::Document document;
    document.Parse(text.data(), text.size());
    return document;
}

std::string ContentOf(const char* path)
{
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

rapidjson::Document SchemaDocument() { return Parsed(ContentOf(VX_SCHEMA)); }

/// What a document has against the schema, a line each; empty when it fits.
std::string Misfits(const std::string& text)
{
    const auto schemaDocument = SchemaDocument();
    valijson::Schema schema;
    valijson::SchemaParser parser;
    parser.populateSchema(RapidJsonAdapter(schemaDocument), schema);
    const auto document = Parsed(text);
    valijson::ValidationResults results;
    valijson::Validator().validate(schema, RapidJsonAdapter(document), &results);
    std::string misfits;
    for (const auto& error : results)
        misfits += error.context.back() + ": " + error.description + '\n';
    return misfits;
}

/// A tree with a preset of every container that can be written here.
std::shared_ptr<IVXFormatNode> EveryContainer()
{
    auto root = IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    const auto child = IVXFormatNode::MallocFormatNode(root);
    for (const auto& name : VXMediaCodecSupportOutputAllMediaFormats())
        child->AddFormatPreset(IVXFormatPreset::MallocFormatPreset(name, {}));
    return root;
}

TEST(Schema, IsJson) { EXPECT_FALSE(SchemaDocument().HasParseError()); }

TEST(Schema, TakesTheDefaultsOfEveryContainer)
{
    EXPECT_EQ("", Misfits(JsonText(*EveryContainer()->JsonValue())));
}

TEST(Schema, TakesThemLoadedAndWrittenAgain)
{
    const auto root = IVXFormatNode::MallocFormatNode(EveryContainer()->JsonValue());
    EXPECT_EQ("", Misfits(JsonText(*root->JsonValue())));
}

TEST(Schema, TakesAnEmptyNode)
{
    const auto root = IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    EXPECT_EQ("", Misfits(JsonText(*root->JsonValue())));
    EXPECT_EQ("", Misfits("{}"));
}

TEST(Schema, RefusesAMemberThatNobodyReads) { EXPECT_NE("", Misfits(R"({"childList": [{"faceId": 1}]})")); }

TEST(Schema, RefusesAnotherType)
{
    EXPECT_NE("", Misfits(R"({"formatPresetList": [{"maxWidth": "1280"}]})"));
}

using Names = std::vector<std::string>;

/// The members that the schema gives a definition, in its order.
Names NamesOf(const std::string& definition)
{
    const auto schema = SchemaDocument();
    Names names;
    for (const auto& member : schema["definitions"][definition.c_str()]["properties"].GetObject())
        names.emplace_back(member.name.GetString());
    return names;
}

/// The definition of the objects that stand under a member.
std::string DefinitionOf(const std::string& member)
{
    static const std::map<std::string, std::string> kDefinitions{
        {"childList", "node"},
        {"formatPresetList", "formatPreset"},
        {"videoCodecPresets", "codecPreset"},
        {"audioCodecPresets", "codecPreset"},
        {"aspectPreset", "aspectPreset"},
        {"resolutionPresets", "resolutionPreset"},
        {"frameratePresets", "frameratePreset"},
        {"sampleratePresets", "sampleratePreset"},
        {"channelLayoutPresets", "channelLayoutPreset"},
        {"profilesPresets", "profilePreset"},
        {"levelPresets", "levelPreset"},
    };
    return kDefinitions.at(member);
}

/// The names that loaders ask for, by the definition of the object that is asked.
using Asked = std::map<std::string, std::set<std::string>>;

/// An object that has every member that it is asked for, and writes down which. Every list has one element,
/// but for one below itself, which has none.
class AskedObject final : public IVXJsonValue, public std::enable_shared_from_this<AskedObject>
{
public:
    AskedObject(Asked& asked, std::string definition) : m_asked(asked), m_definition(std::move(definition)) {}

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view name) const override
    {
        return Inside(name);
    }
    bool HasKey(std::string_view name) const override { return Ask(name); }
    std::string GetValueString(std::string_view name) const override { return Ask(name) ? "text" : ""; }
    int GetValueInt(std::string_view name) const override { return Ask(name) ? 1 : 0; }
    std::int64_t GetValueInt64(std::string_view name) const override { return Ask(name) ? 1 : 0; }
    bool GetValueBool(std::string_view name) const override { return Ask(name); }
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view name) const override
    {
        return Inside(name);
    }
    int Size() const override { return m_asked.contains(m_definition) ? 0 : 1; }
    std::shared_ptr<const IVXJsonValue> At(int) const override { return shared_from_this(); }
    void SetValueInt(std::string_view, int) override {}
    void SetValueInt64(std::string_view, std::int64_t) override {}
    void SetValueBool(std::string_view, bool) override {}
    void SetValueString(std::string_view, const std::string&) override {}
    void SetValueObject(std::string_view, const std::shared_ptr<IVXJsonValue>&) override {}
    void SetValueArray(std::string_view, const std::vector<std::shared_ptr<IVXJsonValue>>&) override {}

private:
    bool Ask(std::string_view name) const { return m_asked[m_definition].emplace(name), true; }

    std::shared_ptr<const IVXJsonValue> Inside(std::string_view name) const
    {
        Ask(name);
        return std::make_shared<AskedObject>(m_asked, DefinitionOf(std::string(name)));
    }

    Asked& m_asked;
    std::string m_definition;
};

Asked AskedOfADocument()
{
    Asked asked;
    IVXFormatNode::MallocFormatNode(std::make_shared<const AskedObject>(asked, "node"));
    return asked;
}

TEST(Schema, NamesAMemberThatLoadersDeliberatelyDoNotRead)
{
    EXPECT_FALSE(AskedOfADocument()["codecPreset"].contains("indexForQualityPresets"));
}

class SchemaDefinition : public testing::TestWithParam<const char*>
{
};

TEST_P(SchemaDefinition, NamesTheMembersThatLoadersRead)
{
    auto asked = AskedOfADocument()[GetParam()];
    if (GetParam() == std::string("codecPreset"))
        asked.insert("indexForQualityPresets"); // written, and deliberately never read
    const auto names = NamesOf(GetParam());
    EXPECT_EQ(asked, std::set<std::string>(names.begin(), names.end()));
}

TEST_P(SchemaDefinition, HasItsMembersInThePageOfDocuments)
{
    const auto page = ContentOf(VX_DOCUMENT_PAGE);
    for (const auto& name : NamesOf(GetParam()))
        EXPECT_NE(std::string::npos, page.find('`' + name + '`')) << name;
}

/// The member names of the first object of each definition, in their order.
void Collect(const rapidjson::Value& object, const std::string& definition,
             std::map<std::string, Names>& names)
{
    auto& own = names[definition];
    const bool isFirst = own.empty();
    for (const auto& [name, value] : object.GetObject())
    {
        if (isFirst)
            names[definition].emplace_back(name.GetString());
        if (value.IsObject())
            Collect(value, DefinitionOf(name.GetString()), names);
        if (value.IsArray())
            for (const auto& element : value.GetArray())
                Collect(element, DefinitionOf(name.GetString()), names);
    }
}

TEST_P(SchemaDefinition, NamesTheMembersThatWritersWriteInTheirOrder)
{
    std::map<std::string, Names> written;
    Collect(Parsed(JsonText(*EveryContainer()->JsonValue())), "node", written);
    EXPECT_EQ(written[GetParam()], NamesOf(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Definitions, SchemaDefinition,
                         testing::Values("node", "formatPreset", "codecPreset", "aspectPreset",
                                         "resolutionPreset", "frameratePreset", "sampleratePreset",
                                         "channelLayoutPreset", "profilePreset", "levelPreset"),
                         [](const auto& test) { return std::string(test.param); });

TEST(Schema, TakesTheExampleOfThePageOfDocuments)
{
    const auto page = ContentOf(VX_DOCUMENT_PAGE);
    const auto begin = page.find("```json\n") + 8;
    const auto example = page.substr(begin, page.find("```", begin) - begin);
    EXPECT_EQ("", Misfits(example));
    Media::ScratchFolder folder;
    const auto run = RunTool({"check", folder.Write("presets.json", example)});
    EXPECT_TRUE(run.out.ends_with("presets.json: 1 preset, nothing wrong\n")) << run.out;
}

TEST(Schema, HasNoOtherDefinitions)
{
    std::set<std::string> definitions;
    const auto schema = SchemaDocument();
    for (const auto& definition : schema["definitions"].GetObject())
        definitions.emplace(definition.name.GetString());
    std::set<std::string> asked;
    for (const auto& [definition, names] : AskedOfADocument())
        asked.insert(definition);
    EXPECT_EQ(asked, definitions);
}

} // namespace

} // namespace Vexlor::Apps
