#include "apps/studio/document/TreeEditor.h"
#include "apps/studio/document/StudioDocument.h"

#include "IVXArtworkImageMgr.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

using Node = std::shared_ptr<IVXFormatNode>;

/// Root(A(a1 a2 a3) B(b1)), a tree of presets that are told by their names.
class TreeEditorTest : public testing::Test
{
protected:
    TreeEditorTest()
    {
        const auto root = IVXFormatNode::MallocFormatNode(Node());
        root->SetName("Root");
        Fill(root, "A", {"a1", "a2", "a3"});
        Fill(root, "B", {"b1"});
        document.SetContent({root, std::make_shared<DocumentBasis>()}, {});
    }

    static void Fill(const Node& root, const std::string& name, const std::vector<std::string>& presets)
    {
        const auto node = IVXFormatNode::MallocFormatNode(root);
        node->SetName(name);
        for (const auto& preset : presets)
        {
            node->AddFormatPreset(IVXFormatPreset::MallocFormatPreset("MP4", ""));
            node->LastFormatPreset()->SetName(preset);
        }
    }

    static std::string Outline(IVXFormatNode& node)
    {
        auto text = node.Name() + '(';
        for (const auto& child : node.GetChildList())
            text += Outline(*child) + ' ';
        for (int i = 0; i < node.FormatPresetCount(); ++i)
            text += node.GetFormatPreset(i)->Name() + ' ';
        if (text.back() == ' ')
            text.pop_back();
        return text + ')';
    }

    std::string Outline() { return Outline(*document.Root()); }
    Node At(int category) { return document.Root()->GetChild(category); }
    TreeItem Preset(int category, int index) { return {{}, At(category)->GetFormatPreset(index)}; }

    StudioDocument document;
    TreeEditor editor{document};
};

TEST_F(TreeEditorTest, MovesWithinAListAndBack)
{
    editor.Move({Preset(0, 0)}, {At(0), 0, 2});
    EXPECT_EQ("Root(A(a2 a1 a3) B(b1))", Outline());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
}

TEST_F(TreeEditorTest, MovesSeveralInTheirOrder)
{
    editor.Move({Preset(0, 0), Preset(0, 2)}, {At(1), 0, 0});
    EXPECT_EQ("Root(A(a2) B(a1 a3 b1))", Outline());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
}

TEST_F(TreeEditorTest, MovesACategoryIntoAnother)
{
    editor.Move({{At(1)}}, {At(0)});
    EXPECT_EQ("Root(A(B(b1) a1 a2 a3))", Outline());
    EXPECT_EQ(At(0), At(0)->GetChild(0)->Parent());
}

TEST_F(TreeEditorTest, NeverMovesACategoryIntoItself)
{
    EXPECT_NE("", editor.Move({{At(0)}}, {At(0)}));
    EXPECT_NE("", editor.Move({{document.Root()}}, {At(0)}));
    EXPECT_EQ(0, document.Undo().count());
}

TEST_F(TreeEditorTest, MakesNoStepOfWhatStaysWhereItIs)
{
    editor.Move({Preset(0, 1)}, {At(0), 0, 1});
    editor.Move({Preset(0, 2)}, {At(0)});
    editor.Remove({});
    EXPECT_EQ(0, document.Undo().count());
}

TEST_F(TreeEditorTest, NumbersANameThatIsTakenWhereItMovesTo)
{
    SetName(Preset(1, 0), "a1");
    editor.Move({Preset(1, 0)}, {At(0)});
    EXPECT_EQ("Root(A(a1 a2 a3 a1 2) B())", Outline());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(a1))", Outline());
}

TEST_F(TreeEditorTest, MovesWhatIsThereTogetherWithWhatComesThere)
{
    editor.Move({Preset(0, 2), Preset(1, 0), Preset(0, 0)}, {At(0), 0, 2});
    EXPECT_EQ("Root(A(a2 a3 b1 a1) B())", Outline());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
    document.Undo().redo();
    EXPECT_EQ("Root(A(a2 a3 b1 a1) B())", Outline());
}

TEST_F(TreeEditorTest, MovesCategoriesAndPresetsInOneStep)
{
    editor.Move({{At(1)}, Preset(0, 1)}, {document.Root(), 0, 0});
    EXPECT_EQ("Root(B(b1) A(a1 a3) a2)", Outline());
    EXPECT_EQ(1, document.Undo().count());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
}

TEST_F(TreeEditorTest, MakesNoStepOfSeveralThatStayWhereTheyAre)
{
    editor.Move({Preset(0, 1), Preset(0, 2)}, {At(0), 0, 2});
    EXPECT_EQ(0, document.Undo().count());
}

TEST_F(TreeEditorTest, CopiesAreOtherObjects)
{
    const auto copies = editor.Copy({Preset(0, 0)}, {At(0), 0, 1});
    EXPECT_EQ("Root(A(a1 a1 2 a2 a3) B(b1))", Outline());
    EXPECT_NE(Preset(0, 0), copies.at(0));
}

TEST_F(TreeEditorTest, CopiesOfCategoriesKnowTheirParents)
{
    editor.Move({{At(1)}}, {At(0)});
    const auto copy = editor.Copy({{At(0)}}, {document.Root()}).at(0).category;
    EXPECT_EQ(document.Root(), copy->Parent());
    EXPECT_EQ(copy, copy->GetChild(0)->Parent());
}

TEST_F(TreeEditorTest, DeletesSeveralAsOneStep)
{
    editor.Remove({Preset(0, 0), Preset(0, 1), {At(1)}});
    EXPECT_EQ("Root(A(a3))", Outline());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
}

TEST_F(TreeEditorTest, DeletesWhatStandsApartAndBringsItBackThere)
{
    editor.Remove({Preset(0, 2), Preset(0, 0), Preset(1, 0)});
    EXPECT_EQ("Root(A(a2) B())", Outline());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
    document.Undo().redo();
    EXPECT_EQ("Root(A(a2) B())", Outline());
}

TEST_F(TreeEditorTest, DeletesWhatIsInsideOfADeletedCategoryOnlyOnce)
{
    editor.Remove({{At(0)}, Preset(0, 0)});
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
}

TEST_F(TreeEditorTest, RenamesAndBack)
{
    EXPECT_EQ("", editor.Rename(Preset(0, 0), "  x "));
    EXPECT_EQ("Root(A(x a2 a3) B(b1))", Outline());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
}

TEST_F(TreeEditorTest, RefusesNamesThatAreTakenOrEmpty)
{
    EXPECT_NE("", editor.Rename(Preset(0, 0), "a2"));
    EXPECT_NE("", editor.Rename(Preset(0, 0), " "));
    EXPECT_EQ(0, document.Undo().count());
}

TEST_F(TreeEditorTest, ClonesIntoACategoryThatItMakes)
{
    editor.CloneIntoOwn({Preset(0, 1)});
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1) Customised(a2))", Outline());
    EXPECT_EQ(IVXArtworkImageMgr::CategoryFaceIDCustomize, At(2)->FaceID());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
}

TEST_F(TreeEditorTest, ClonesIntoTheCategoryOfThatIcon)
{
    At(1)->SetFaceID(IVXArtworkImageMgr::CategoryFaceIDCustomize);
    editor.CloneIntoOwn({Preset(0, 1)});
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1 a2))", Outline());
}

TEST_F(TreeEditorTest, ShiftsInsideItsList)
{
    editor.Shift({Preset(0, 2)}, -1);
    EXPECT_EQ("Root(A(a1 a3 a2) B(b1))", Outline());
    editor.Shift({{At(0)}}, 5);
    EXPECT_EQ("Root(B(b1) A(a1 a3 a2))", Outline());
    editor.Shift({{At(1)}}, 1);
    EXPECT_EQ(2, document.Undo().count());
}

TEST_F(TreeEditorTest, ShiftsSeveralTogether)
{
    editor.Shift({Preset(0, 0), Preset(0, 1)}, 1);
    EXPECT_EQ("Root(A(a3 a1 a2) B(b1))", Outline());
    editor.Shift({Preset(0, 1), Preset(0, 2)}, 1);
    EXPECT_EQ(1, document.Undo().count());
    editor.Shift({Preset(0, 1), Preset(0, 2), Preset(1, 0), {At(1)}}, -1);
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a3 a1 a2) B(b1))", Outline());
}

TEST_F(TreeEditorTest, ShiftsNothingThatIsNotThere)
{
    editor.Shift({}, 1);
    editor.Shift({{document.Root()}}, 1);
    EXPECT_EQ(0, document.Undo().count());
}

TEST_F(TreeEditorTest, AddsAPresetOfAContainer)
{
    EXPECT_FALSE(editor.AddPreset(At(1), "no such container"));
    EXPECT_TRUE(editor.AddPreset(At(1), "MKV"));
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1 MKV))", Outline());
}

TEST_F(TreeEditorTest, AddsATreeToCategoriesOfItsNames)
{
    const auto other = IVXFormatNode::MallocFormatNode(Node());
    Fill(other, "A", {"a1", "x"});
    Fill(other, "C", {"c1"});
    EXPECT_EQ(3U, editor.AddAll(*other, "Import").size());
    EXPECT_EQ("Root(A(a1 a2 a3 a1 2 x) B(b1) C(c1))", Outline());
    document.Undo().undo();
    EXPECT_EQ("Root(A(a1 a2 a3) B(b1))", Outline());
}

} // namespace
