#include "apps/studio/document/FreeNames.h"

#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/document/TreeEditor.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

TreeItem NewPreset(const char* name)
{
    TreeItem item{{}, IVXFormatPreset::MallocFormatPreset("WAV", "")};
    SetName(item, name);
    return item;
}

class FreeNamesTest : public testing::Test
{
protected:
    FreeNamesTest()
    {
        for (const auto* name : {"a", "a 2", "a 4"})
            category->AddFormatPreset(NewPreset(name).preset);
    }

    std::shared_ptr<IVXFormatNode> category =
        IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    TreeItem preset = NewPreset("a");
};

TEST_F(FreeNamesTest, LeaveAFreeNameAsItIs)
{
    EXPECT_EQ("b", FreeNames(*category).Take(preset, "b"));
    EXPECT_EQ("A", FreeNames(*category).Take(preset, "A"));
}

TEST_F(FreeNamesTest, PutTheLowestFreeNumberBehindATakenOne)
{
    FreeNames names(*category);
    EXPECT_EQ("a 3", names.Take(preset, "a"));
    EXPECT_EQ("a 5", names.Take(preset, "a"));
    EXPECT_EQ("a 2 2", names.Take(preset, "a 2"));
}

TEST_F(FreeNamesTest, TakeWhatTheyGive)
{
    FreeNames names(*category);
    EXPECT_EQ("b 2", names.Take(preset, "b 2"));
    EXPECT_EQ("b", names.Take(preset, "b"));
    EXPECT_EQ("b 3", names.Take(preset, "b"));
}

TEST_F(FreeNamesTest, AreThoseOfOneKind)
{
    FreeNames names(*category);
    EXPECT_EQ("a", names.Take({category}, "a"));
    EXPECT_EQ("a 2", names.Take({category}, "a"));
}

TEST(FreeNames, AreEnoughForThousandsOfCopies)
{
    constexpr int kCopies = 3000;
    StudioDocument document;
    TreeEditor editor(document);
    const auto category = editor.AddCategory(document.Root(), "Many").category;
    const auto copies = editor.Copy(TreeEditor::Items(kCopies, NewPreset("a")), {category});
    EXPECT_EQ("a", NameOf(copies.front()));
    EXPECT_EQ("a 3000", NameOf(copies.back()));
    const auto other = editor.AddCategory(document.Root(), "Other").category;
    editor.Copy({copies.front()}, {other});
    EXPECT_EQ("", editor.Move(copies, {other}));
    EXPECT_EQ("a 2", NameOf(copies[0]));
    EXPECT_EQ("a 2 2", NameOf(copies[1]));
    EXPECT_EQ("a 3000", NameOf(copies.back()));
    document.Undo().undo();
    EXPECT_EQ("a", NameOf(copies.front()));
}

} // namespace
