#include "apps/studio/document/RecentPresets.h"

#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/document/TreeEditor.h"

#include "IVXArtworkImageMgr.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

std::shared_ptr<IVXFormatPreset> Named(const std::string& name)
{
    auto preset = IVXFormatPreset::MallocFormatPreset("WAV", "");
    preset->SetName(name);
    return preset;
}

std::string NamesIn(IVXFormatNode& category)
{
    std::string names;
    for (int i = 0; i < category.FormatPresetCount(); ++i)
        names += category.GetFormatPreset(i)->Name() + ' ';
    return names;
}

class RecentPresetsTest : public testing::Test
{
protected:
    void Use(const IVXFormatPreset& preset) { document.NoteUsed(preset, preset); }
    std::string Recent() { return NamesIn(*document.Root()->FindChild("Recently Used")); }

    StudioDocument document;
};

TEST_F(RecentPresetsTest, HaveTheNewestFirst)
{
    Use(*Named("a"));
    Use(*Named("b"));
    EXPECT_EQ("b a ", Recent());
}

TEST_F(RecentPresetsTest, HaveNothingTwice)
{
    for (const auto* name : {"a", "b", "a"})
        Use(*Named(name));
    EXPECT_EQ("a b ", Recent());
}

TEST_F(RecentPresetsTest, AreCopies)
{
    const auto preset = Named("a");
    Use(*preset);
    EXPECT_NE(preset, document.Root()->FindChild("Recently Used")->FirstFormatPreset());
}

TEST_F(RecentPresetsTest, AreAsTheyWereWhenTheyWereUsed)
{
    const auto preset = Named("edited");
    document.NoteUsed(*preset, *Named("used"));
    EXPECT_EQ("used ", Recent());
}

TEST_F(RecentPresetsTest, AreNotMoreThanTheBound)
{
    for (int i = 0; i < kMostRecentPresets + 3; ++i)
        Use(*Named(std::to_string(i)));
    const auto category = document.Root()->FindChild("Recently Used");
    EXPECT_EQ(kMostRecentPresets, category->FormatPresetCount());
    EXPECT_EQ(std::to_string(3), category->LastFormatPreset()->Name());
}

TEST_F(RecentPresetsTest, GetTheirCategoryWhereThereIsNone)
{
    document.Tree().Remove({document.Root()->FindChild("Recently Used")}, document.Root());
    Use(*Named("a"));
    EXPECT_EQ(IVXArtworkImageMgr::CategoryFaceIDRecentList,
              document.Root()->FindChild("Recently Used")->FaceID());
}

TEST_F(RecentPresetsTest, AreNoStepAndNothingToLose)
{
    document.SetContent(BuiltInContent(), "/mine.json");
    Use(*Named("a"));
    EXPECT_EQ(0, document.Undo().count());
    EXPECT_FALSE(document.IsModified());
}

TEST_F(RecentPresetsTest, OutliveTheUndoingOfAStep)
{
    TreeEditor editor(document);
    Use(*Named("a"));
    editor.Remove({{{}, document.Root()->FindChild("Recently Used")->FirstFormatPreset()}});
    Use(*Named("b"));
    document.Undo().undo();
    EXPECT_EQ("a b ", Recent());
}

TEST_F(RecentPresetsTest, MoveToTheFrontWhenTheyAreUsedThemselves)
{
    for (const auto* name : {"a", "b"})
        Use(*Named(name));
    const auto used = document.Root()->FindChild("Recently Used")->LastFormatPreset();
    Use(*used);
    EXPECT_EQ("a b ", Recent());
    EXPECT_EQ(used, document.Root()->FindChild("Recently Used")->FirstFormatPreset());
}

TEST_F(RecentPresetsTest, TakeNothingThatIsMovedThere)
{
    const auto video = document.Root()->FindChild("Video");
    const auto mine = video->FindFormatPreset("MP4");
    EXPECT_NE("", TreeEditor(document).Move({{{}, mine}}, {document.Root()->FindChild("Recently Used")}));
    EXPECT_EQ(mine, video->FindFormatPreset("MP4"));
    EXPECT_EQ("", Recent());
}

TEST_F(RecentPresetsTest, AreMovedAmongThemselves)
{
    for (const auto* name : {"c", "b", "a"})
        Use(*Named(name));
    const auto recent = document.Root()->FindChild("Recently Used");
    TreeEditor(document).Move({{{}, recent->FirstFormatPreset()}}, {recent});
    EXPECT_EQ("b c a ", Recent());
}

} // namespace
