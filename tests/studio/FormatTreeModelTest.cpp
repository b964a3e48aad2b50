#include "apps/studio/tree/FormatTreeModel.h"

#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/tree/FaceIcons.h"
#include "apps/studio/tree/TreeMime.h"

#include "IVXArtworkImageMgr.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QImage>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

class FormatTreeModelTest : public testing::Test
{
protected:
    QModelIndex Row(int row, const QModelIndex& parent = {}) { return model.index(row, 0, parent); }
    QString Text(const QModelIndex& index) { return index.data().toString(); }
    QModelIndex Category(const char* name) { return model.IndexOfItem({document.Root()->FindChild(name)}); }
    QModelIndex Preset(const char* category, int index)
    {
        return model.IndexOfItem({{}, document.Root()->FindChild(category)->GetFormatPreset(index)});
    }
    bool Drop(const QModelIndexList& from, Qt::DropAction action, int row, const QModelIndex& parent)
    {
        const std::unique_ptr<QMimeData> data(model.mimeData(from));
        return model.dropMimeData(data.get(), action, row, 0, parent);
    }

    StudioDocument document;
    FaceIcons icons;
    FormatTreeModel model{document, icons};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(FormatTreeModelTest, ShowsCategoriesBeforePresets)
{
    EXPECT_EQ("General", Text(Row(0)));
    const auto video = Category("Video");
    EXPECT_EQ("More MP4", Text(Row(0, video)));
    EXPECT_EQ("MP4", Text(Preset("Video", 0)));
    EXPECT_EQ(document.Root()->FindChild("Video")->ChildCount(), Preset("Video", 0).row());
}

TEST_F(FormatTreeModelTest, FindsEachItemAgain)
{
    const auto index = Preset("Video", 3);
    EXPECT_EQ(index, model.IndexOfItem(model.ItemAt(index)));
    EXPECT_EQ(Category("Video"), index.parent());
    EXPECT_FALSE(model.IndexOfItem({document.Root()}).isValid());
}

TEST_F(FormatTreeModelTest, FollowsEveryChangeOfTheTree)
{
    TreeEditor editor(document);
    const QPersistentModelIndex mp4 = Preset("Video", 0);
    editor.AddCategory(document.Root()->FindChild("Video"), "New");
    editor.Move({model.ItemAt(mp4)}, {document.Root()->FindChild("Audio")});
    EXPECT_EQ(Category("Audio"), mp4.parent());
    editor.Remove({model.ItemAt(Category("Devices"))});
    document.Undo().setIndex(0);
    EXPECT_EQ(Category("Video"), mp4.parent());
    document.SetContent(BuiltInContent(), {});
    EXPECT_FALSE(mp4.isValid());
}

TEST_F(FormatTreeModelTest, TellsOfAChangedPreset)
{
    const QSignalSpy spy(&model, &QAbstractItemModel::dataChanged);
    document.EditPreset(model.ItemAt(Preset("Video", 1)).preset, "Name",
                        [](IVXFormatPreset& preset) { preset.SetName("x"); });
    ASSERT_EQ(1, spy.count());
    EXPECT_EQ(Preset("Video", 1), spy.at(0).at(0).toModelIndex());
    EXPECT_EQ("x", Text(Preset("Video", 1)));
}

TEST_F(FormatTreeModelTest, RenamesInPlace)
{
    EXPECT_TRUE(model.setData(Preset("Video", 0), "Film"));
    EXPECT_EQ("Film", Text(Preset("Video", 0)));
}

TEST_F(FormatTreeModelTest, TellsWhyANameIsRefused)
{
    const QSignalSpy spy(&model, &FormatTreeModel::Refused);
    EXPECT_FALSE(model.setData(Preset("Video", 0), "MOV"));
    EXPECT_EQ(1, spy.count());
}

TEST_F(FormatTreeModelTest, MovesWhatIsDropped)
{
    EXPECT_TRUE(Drop({Preset("Video", 0)}, Qt::MoveAction, -1, Category("Customised")));
    EXPECT_EQ("MP4", Text(Row(0, Category("Customised"))));
    EXPECT_NE("MP4", Text(Preset("Video", 0)));
}

TEST_F(FormatTreeModelTest, PutsWhatIsDroppedBetweenRowsThere)
{
    const int row = Preset("Video", 2).row();
    EXPECT_TRUE(Drop({Preset("Video", 0)}, Qt::MoveAction, row, Category("Video")));
    EXPECT_EQ("MP4", Text(Preset("Video", 1)));
}

TEST_F(FormatTreeModelTest, CopiesWhatIsDroppedWithControl)
{
    EXPECT_TRUE(Drop({Preset("Video", 0)}, Qt::CopyAction, -1, Category("Customised")));
    EXPECT_EQ("MP4", Text(Preset("Video", 0)));
    EXPECT_EQ("MP4", Text(Preset("Customised", 0)));
}

TEST_F(FormatTreeModelTest, TakesNothingBelowAPreset)
{
    EXPECT_FALSE(Drop({Preset("Video", 0)}, Qt::MoveAction, -1, Preset("Video", 1)));
}

TEST_F(FormatTreeModelTest, TakesPresetsOfAnotherProgramAsText)
{
    const std::unique_ptr<QMimeData> ours(model.mimeData({Preset("Video", 0), Category("Audio")}));
    QMimeData theirs;
    theirs.setData(kTreeMimeType, ours->data(kTreeMimeType));
    EXPECT_TRUE(model.dropMimeData(&theirs, Qt::MoveAction, -1, 0, Category("Customised")));
    EXPECT_EQ("Audio", Text(Row(0, Category("Customised"))));
    EXPECT_EQ("MP4", Text(Row(1, Category("Customised"))));
}

TEST_F(FormatTreeModelTest, DragsWhatIsInsideOfADraggedCategoryOnlyOnce)
{
    const std::unique_ptr<QMimeData> data(model.mimeData({Preset("Video", 0), Category("Video")}));
    EXPECT_EQ(1U, ItemsIn(*data).size());
}

TEST_F(FormatTreeModelTest, HasIconsOfBothModesInSizesForSharpScreens)
{
    const auto icon = Preset("Video", 0).data(Qt::DecorationRole).value<QIcon>();
    EXPECT_GE(icon.availableSizes(QIcon::Normal).size(), 3);
    const QSize size(32, 32);
    EXPECT_NE(icon.pixmap(size, QIcon::Normal).toImage(), icon.pixmap(size, QIcon::Selected).toImage());
}

TEST_F(FormatTreeModelTest, HasAnIconForFacesThatNobodyKnows)
{
    EXPECT_FALSE(icons.IconOf(4711, true).isNull());
    EXPECT_FALSE(icons.IconOf(0, false).isNull());
}

} // namespace
