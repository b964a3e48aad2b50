#include "PresetPaneFixture.h"

#include "apps/studio/document/TreeEditor.h"

#include "IVXFormatNode.h"

#include <QPlainTextEdit>

namespace Vexlor::Studio
{

namespace
{

/// The pane while a category is picked.
class PresetCategoryTest : public PresetPaneTest
{
protected:
    PresetCategoryTest()
    {
        pane.ShowItem({category});
        QCoreApplication::processEvents();
    }

    std::shared_ptr<IVXFormatNode> category = document.Root()->FindChild("Video");
};

TEST_F(PresetCategoryTest, ShowsItsNameItsIconAndItsDescription)
{
    EXPECT_EQ("Video", pane.findChild<QLineEdit*>("name")->text());
    EXPECT_EQ(category->FaceID(), pane.findChild<QComboBox*>("icon")->currentData().toInt());
    EXPECT_EQ(QString::fromStdString(category->Description()),
              pane.findChild<QPlainTextEdit*>("description")->toPlainText());
    EXPECT_FALSE(pane.findChild<QTabWidget*>("streams")->isVisible());
}

TEST_F(PresetCategoryTest, ChangesTheDescriptionInOneStep)
{
    auto& description = *pane.findChild<QPlainTextEdit*>("description");
    const auto before = category->Description();
    const int steps = document.Undo().count();
    description.setFocus();
    QTest::keyClicks(&description, "New ");
    EXPECT_EQ("New " + before, category->Description());
    EXPECT_EQ(steps + 1, document.Undo().count());
    document.Undo().undo();
    EXPECT_EQ(before, category->Description());
    EXPECT_EQ(QString::fromStdString(before), description.toPlainText());
}

TEST_F(PresetCategoryTest, ChangesTheIconToOneOfTheArtworkFile)
{
    auto& icon = *pane.findChild<QComboBox*>("icon");
    const int before = category->FaceID();
    const int other = icon.findData(before) == 1 ? 2 : 1;
    ASSERT_FALSE(icon.itemIcon(other).isNull());
    Pick(icon, icon.itemText(other));
    EXPECT_EQ(icon.itemData(other).toInt(), category->FaceID());
    EXPECT_TRUE(document.IsModified());
    document.Undo().undo();
    EXPECT_EQ(before, category->FaceID());
    EXPECT_EQ(before, icon.currentData().toInt());
}

TEST_F(PresetCategoryTest, ChangesTheNameButForOneThatIsTaken)
{
    auto& name = *pane.findChild<QLineEdit*>("name");
    Type(name, "Pictures");
    EXPECT_EQ("Pictures", category->Name());
    Type(name, "Audio");
    EXPECT_TRUE(Messages(pane).contains("\"Audio\" is there already."));
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_NE("Audio", category->Name());
}

TEST_F(PresetCategoryTest, NeedsAName)
{
    auto& name = *pane.findChild<QLineEdit*>("name");
    name.setFocus();
    name.selectAll();
    QTest::keyClick(&name, Qt::Key_Delete);
    EXPECT_TRUE(Messages(pane).contains("A category needs a name."));
    EXPECT_EQ("Video", category->Name());
}

TEST_F(PresetCategoryTest, FollowsARenamingInTheTree)
{
    EXPECT_EQ("", TreeEditor(document).Rename({category}, "Films"));
    EXPECT_EQ("Films", pane.findChild<QLineEdit*>("name")->text());
}

TEST_F(PresetCategoryTest, GivesWayToAPreset)
{
    pane.ShowItem({{}, preset});
    EXPECT_TRUE(pane.findChild<QTabWidget*>("streams")->isVisible());
    EXPECT_EQ("Phone", pane.findChild<QLineEdit*>("name")->text());
}

} // namespace

} // namespace Vexlor::Studio
