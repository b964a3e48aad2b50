#include "apps/studio/document/RecentPresets.h"

#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/document/TreeEditor.h"
#include "apps/studio/tree/FaceIcons.h"
#include "apps/studio/tree/FormatTreeModel.h"

#include "IVXArtworkImageMgr.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

using Node = std::shared_ptr<IVXFormatNode>;

std::shared_ptr<IVXFormatPreset> Named(const std::string& name)
{
    auto preset = IVXFormatPreset::MallocFormatPreset("WAV", "");
    preset->SetName(name);
    return preset;
}

std::string NamesIn(const Node& category)
{
    std::string names;
    for (int i = 0; category && i < category->FormatPresetCount(); ++i)
        names += category->GetFormatPreset(i)->Name() + ' ';
    return names;
}

/// What a user makes among the recently used presets does not go with them.
class OwnPresetsTest : public testing::Test
{
protected:
    OwnPresetsTest() { Use("a"); }

    Node Recent() { return FindRecentCategory(*document.Root()); }
    Node Own() { return document.Root()->FindChild("Customised"); }
    void Use(const std::string& name)
    {
        const auto preset = Named(name);
        document.NoteUsed(*preset, *preset);
    }
    void UseMany()
    {
        for (int i = 0; i < kMostRecentPresets; ++i)
            Use(std::to_string(i));
    }
    void SetWidth(const std::shared_ptr<IVXFormatPreset>& preset, int width, int run = 0)
    {
        document.EditPreset(
            preset, "Bounds", [width](IVXFormatPreset& changed) { changed.SetMaxWidth(width); }, run);
    }

    StudioDocument document;
    TreeEditor editor{document};
    FaceIcons icons;
    FormatTreeModel model{document, icons};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(OwnPresetsTest, GoWhereTheUsersAreWhenTheyAreMadeThere)
{
    EXPECT_TRUE(editor.AddPreset(Recent(), "MP3"));
    EXPECT_EQ("a ", NamesIn(Recent()));
    EXPECT_EQ("MP3 ", NamesIn(Own()));
}

TEST_F(OwnPresetsTest, GoWhereTheUsersAreWhenTheyArePastedThere)
{
    editor.Copy({{{}, Named("b")}, {{}, Named("c")}}, {Recent(), 0, 1});
    EXPECT_EQ("a ", NamesIn(Recent()));
    EXPECT_EQ("b c ", NamesIn(Own()));
    document.Undo().undo();
    EXPECT_EQ("", NamesIn(Own()));
}

TEST_F(OwnPresetsTest, GoWhereTheUsersAreWhenTheyAreImportedThere)
{
    const auto other = IVXFormatNode::MallocFormatNode(Node());
    const auto theirs = IVXFormatNode::MallocFormatNode(other);
    theirs->SetName("Recently Used");
    theirs->AddFormatPreset(Named("b"));
    EXPECT_EQ(1U, editor.AddAll(*other, "Import").size());
    EXPECT_EQ("a ", NamesIn(Recent()));
    EXPECT_EQ("b ", NamesIn(Own()));
}

TEST_F(OwnPresetsTest, AreThoseThatAreChangedThere)
{
    const auto changed = Recent()->FirstFormatPreset();
    const QSignalSpy told(&document, &StudioDocument::MadeOwn);
    SetWidth(changed, 77);
    EXPECT_EQ("", NamesIn(Recent()));
    EXPECT_EQ(changed, Own()->FirstFormatPreset());
    EXPECT_EQ(1, told.count());
    UseMany();
    EXPECT_EQ(77, Own()->FirstFormatPreset()->MaxWidth());
}

TEST_F(OwnPresetsTest, AreThoseThatAreRenamedThere)
{
    EXPECT_EQ("", editor.Rename({{}, Recent()->FirstFormatPreset()}, "mine"));
    EXPECT_EQ("", NamesIn(Recent()));
    EXPECT_EQ("mine ", NamesIn(Own()));
    document.Undo().undo();
    EXPECT_EQ("a ", NamesIn(Recent()));
    EXPECT_EQ("", NamesIn(Own()));
}

TEST_F(OwnPresetsTest, BecomeSoWithTheStepThatChangesThem)
{
    const auto changed = Recent()->FirstFormatPreset();
    SetWidth(changed, 7, 1);
    SetWidth(changed, 77, 1);
    EXPECT_EQ(1, document.Undo().count());
    document.Undo().undo();
    EXPECT_EQ(changed, Recent()->FirstFormatPreset());
    EXPECT_EQ(0, changed->MaxWidth());
    document.Undo().redo();
    EXPECT_EQ(changed, Own()->FirstFormatPreset());
    EXPECT_EQ(77, changed->MaxWidth());
}

TEST_F(OwnPresetsTest, GoBackWithTheStepThoughItCameToNothing)
{
    const auto changed = Recent()->FirstFormatPreset();
    SetWidth(changed, 7, 1);
    SetWidth(changed, 0, 1);
    EXPECT_EQ(1, document.Undo().count());
    document.Undo().undo();
    EXPECT_EQ(changed, Recent()->FirstFormatPreset());
}

TEST_F(OwnPresetsTest, HaveACategoryMadeForThem)
{
    editor.Remove({{Own()}});
    SetWidth(Recent()->FirstFormatPreset(), 77);
    EXPECT_EQ("a ", NamesIn(Own()));
    EXPECT_EQ(IVXArtworkImageMgr::CategoryFaceIDCustomize, Own()->FaceID());
    document.Undo().undo();
    EXPECT_FALSE(Own());
    EXPECT_EQ("a ", NamesIn(Recent()));
}

TEST_F(OwnPresetsTest, GetANumberWhereTheirNameIsTaken)
{
    editor.Copy({{{}, Named("a")}}, {Own()});
    const auto changed = Recent()->FirstFormatPreset();
    SetWidth(changed, 77);
    EXPECT_EQ("a a 2 ", NamesIn(Own()));
    document.Undo().undo();
    EXPECT_EQ("a", changed->Name());
}

TEST_F(OwnPresetsTest, StayInACategoryThatOnlyLooksLikeTheRecentOne)
{
    const auto root = IVXFormatNode::MallocFormatNode(Node());
    const auto mine = IVXFormatNode::MallocFormatNode(root);
    mine->SetFaceID(IVXArtworkImageMgr::CategoryFaceIDRecentList);
    for (int i = 0; i <= kMostRecentPresets; ++i)
        mine->AddFormatPreset(Named("mine"));
    document.SetContent({root, std::make_shared<DocumentBasis>()}, {});
    UseMany();
    Use("last");
    EXPECT_EQ(2 * kMostRecentPresets + 1, mine->FormatPresetCount());
    EXPECT_EQ("last", mine->FirstFormatPreset()->Name());
    EXPECT_EQ("mine", mine->LastFormatPreset()->Name());
}

TEST_F(OwnPresetsTest, AreNotDroppedAmongTheRecentOnes)
{
    const auto index = model.IndexOfItem({{}, document.Root()->FindChild("Video")->GetFormatPreset(0)});
    const auto recent = model.IndexOfItem({Recent()});
    const std::unique_ptr<QMimeData> theirs(model.mimeData({index}));
    const std::unique_ptr<QMimeData> its(model.mimeData({model.index(0, 0, recent)}));
    for (const auto action : {Qt::MoveAction, Qt::CopyAction})
        EXPECT_FALSE(model.canDropMimeData(theirs.get(), action, -1, 0, recent));
    EXPECT_TRUE(model.canDropMimeData(its.get(), Qt::MoveAction, -1, 0, recent));
}

} // namespace
