#include "apps/studio/document/DocumentText.h"
#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/document/TreeEditor.h"

#include "apps/host/Failure.h"
#include "apps/host/document/Qualities.h"
#include "runtime/foundation/VXJson.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

// Members that nobody reads, an order of its own, and a layout that is not ours.
constexpr auto* kText = R"({
    "note": "mine",
    "childList": [
        { "name": "A", "colour": "red", "formatPresetList": [
            { "name": "one", "secret": 1, "formatName": "MP4" },
            { "formatName": "MP4", "name": "two", "secret": 2 }
        ] },
        { "name": "B", "childList": [], "formatPresetList": [] }
    ],
    "name": "Root"
}
)";

void Open(StudioDocument& document, const std::string& text)
{
    auto basis = std::make_shared<DocumentBasis>();
    basis->text = text;
    const auto json = ParseJson(text);
    auto root = IVXFormatNode::MallocFormatNode(json);
    Tool::TakeUpQualities(*root, *json);
    basis->plan = PlanOf(root, [](const auto&) { return true; });
    document.SetContent({root, basis}, "/nowhere/mine.json");
}

std::string TextNow(const StudioDocument& document) { return TextOf(document.Plan(), *document.Basis()); }

TreeItem Category(const StudioDocument& document, int index) { return {document.Root()->GetChild(index)}; }

TreeItem Preset(const StudioDocument& document, int category, int index)
{
    return {{}, document.Root()->GetChild(category)->GetFormatPreset(index)};
}

TEST(DocumentText, IsTheTextThatWasReadWhereNothingChanged)
{
    StudioDocument document;
    Open(document, kText);
    EXPECT_EQ(kText, TextNow(document));
}

TEST(DocumentText, ChangesOfAPresetWhatWasChanged)
{
    StudioDocument document;
    Open(document, kText);
    TreeEditor(document).Rename(Preset(document, 0, 1), "three");
    auto expected = std::string(kText);
    expected.replace(expected.find("\"two\""), 5, "\"three\"");
    EXPECT_EQ(expected, TextNow(document));
}

TEST(DocumentText, IsAsReadWhenAllIsTakenBack)
{
    StudioDocument document;
    Open(document, kText);
    TreeEditor editor(document);
    editor.Move({Preset(document, 0, 0)}, {document.Root()->GetChild(1)});
    document.EditPreset(Preset(document, 0, 0).preset, "Bounds",
                        [](IVXFormatPreset& preset) { preset.SetMaxWidth(640); });
    while (document.Undo().canUndo())
        document.Undo().undo();
    EXPECT_EQ(kText, TextNow(document));
}

TEST(DocumentText, RenamesACategoryInItsPlace)
{
    StudioDocument document;
    Open(document, kText);
    TreeEditor(document).Rename(Category(document, 1), "C");
    auto expected = std::string(kText);
    expected.replace(expected.find("\"B\""), 3, "\"C\"");
    EXPECT_EQ(expected, TextNow(document));
}

TEST(DocumentText, TakesWhatNobodyReadsAlongToAnotherCategory)
{
    StudioDocument document;
    Open(document, kText);
    TreeEditor(document).Move({Preset(document, 0, 1)}, {document.Root()->GetChild(1)});
    const auto json = ParseJson(TextNow(document));
    const auto there = json->GetValueArray("childList")->At(1)->GetValueArray("formatPresetList");
    ASSERT_EQ(1, there->Size());
    EXPECT_EQ(2, there->At(0)->GetValueInt("secret"));
    EXPECT_EQ("mine", json->GetValueString("note"));
}

TEST(DocumentText, TakesACategoryAlongWithAllInside)
{
    StudioDocument document;
    Open(document, kText);
    TreeEditor(document).Move({Category(document, 0)}, {document.Root()->GetChild(1)});
    const auto json = ParseJson(TextNow(document));
    const auto moved = json->GetValueArray("childList")->At(0)->GetValueArray("childList")->At(0);
    EXPECT_EQ("red", moved->GetValueString("colour"));
    EXPECT_EQ(1, moved->GetValueArray("formatPresetList")->At(0)->GetValueInt("secret"));
}

TEST(DocumentText, HoldsWhatIsNew)
{
    StudioDocument document;
    Open(document, kText);
    TreeEditor editor(document);
    const auto category = editor.AddCategory(document.Root(), "New");
    editor.Copy({Preset(document, 0, 0)}, {category.category});
    const auto tree = IVXFormatNode::MallocFormatNode(ParseJson(TextNow(document)));
    ASSERT_EQ(3, tree->ChildCount());
    EXPECT_EQ("one", tree->GetChild(2)->FirstFormatPreset()->Name());
}

TEST(DocumentText, OfADocumentWithoutAFileIsWhatTheLibraryWrites)
{
    const StudioDocument document;
    const auto text = TextNow(document);
    EXPECT_EQ(JsonText(*document.Root()->JsonValue(), JsonStyle::Indented) + '\n', text);
}

TEST(DocumentText, GivesAnEmptyObjectItsMembers)
{
    StudioDocument document;
    Open(document, R"({"childList": [{}]})");
    TreeEditor(document).Rename(Category(document, 0), "C");
    const auto tree = IVXFormatNode::MallocFormatNode(ParseJson(TextNow(document)));
    EXPECT_EQ("C", tree->GetChild(0)->Name());
}

TEST(DocumentText, FindsAgainWhatStandsWhereInIt)
{
    StudioDocument document;
    Open(document, kText);
    const Tool::DocumentTree tree(document.Basis()->text);
    const auto positions = PositionsOf(document.Plan(), tree);
    const auto position = positions.at(Preset(document, 0, 1).preset.get());
    EXPECT_EQ(2, tree.FindInteger(position, "secret"));
}

TEST(DocumentTextDepth, IsThatOfWhatCanBeReadAgain)
{
    PlannedNode plan;
    for (int i = 0; i < 600; ++i)
    {
        PlannedNode above;
        above.children.push_back(std::move(plan));
        plan = std::move(above);
    }
    EXPECT_THROW(static_cast<void>(TextOf(plan, {})), Tool::Failure);
}

} // namespace
