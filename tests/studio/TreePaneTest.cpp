#include "apps/studio/tree/TreePane.h"

#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/document/TreeEditor.h"
#include "apps/studio/tree/FaceIcons.h"
#include "apps/studio/tree/FormatFilterModel.h"
#include "tests/studio/Patience.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

class TreePaneTest : public testing::Test
{
protected:
    TreePaneTest()
    {
        pane.resize(300, 600);
        pane.show();
    }

    QLineEdit& Search() { return *pane.findChild<QLineEdit*>("search"); }
    QLabel& Count() { return *pane.findChild<QLabel*>("searchCount"); }
    QAbstractItemModel& Shown() { return *pane.View().model(); }

    /// A category with so many presets.
    std::shared_ptr<IVXFormatNode> AddMany(int count)
    {
        const auto category = IVXFormatNode::MallocFormatNode(document.Root());
        category->SetName("Many");
        const auto preset = IVXFormatPreset::MallocFormatPreset("WAV", "");
        for (int i = 0; i < count; ++i)
        {
            category->AddFormatPreset(preset->Clone());
            category->LastFormatPreset()->SetName("preset " + std::to_string(i));
        }
        document.SetContent({document.Root(), std::make_shared<DocumentBasis>()}, {});
        return category;
    }

    StudioDocument document;
    FaceIcons icons;
    TreePane pane{document, icons};
};

TEST_F(TreePaneTest, NarrowsAsOneTypes)
{
    const int all = Shown().rowCount();
    QTest::keyClicks(&Search(), "webm");
    EXPECT_LT(Shown().rowCount(), all);
    EXPECT_TRUE(Count().isVisible());
    Search().clear();
    EXPECT_EQ(all, Shown().rowCount());
    EXPECT_FALSE(Count().isVisible());
}

TEST_F(TreePaneTest, FindsWordsOfThePathToo)
{
    QTest::keyClicks(&Search(), "mp4 video more");
    ASSERT_EQ(1, Shown().rowCount());
    EXPECT_EQ("Video", Shown().index(0, 0).data().toString());
    EXPECT_EQ("More MP4", Shown().index(0, 0, Shown().index(0, 0)).data().toString());
}

TEST_F(TreePaneTest, SelectsTheFirstFoundPresetWithReturn)
{
    const QSignalSpy spy(&pane, &TreePane::CurrentChanged);
    QTest::keyClicks(&Search(), "mkv");
    QTest::keyClick(&Search(), Qt::Key_Return);
    ASSERT_TRUE(pane.Current().IsPreset());
    EXPECT_EQ("MKV", QString::fromStdString(pane.Current().preset->FormatName()));
    EXPECT_EQ(1, spy.count());
}

TEST_F(TreePaneTest, StaysAtWhatASearchHides)
{
    pane.SelectByPath("video/mp4");
    const auto current = pane.Current();
    const QSignalSpy spy(&pane, &TreePane::CurrentChanged);
    QTest::keyClicks(&Search(), "webm");
    EXPECT_EQ(current, pane.Current());
    EXPECT_FALSE(pane.View().currentIndex().isValid());
    EXPECT_TRUE(pane.Selected().empty()) << "or Delete would remove what nobody sees";
    QTest::keyClick(&Search(), Qt::Key_Escape);
    EXPECT_EQ(current, pane.Current());
    EXPECT_EQ(std::vector{current}, pane.Selected());
    EXPECT_EQ(0, spy.count());
}

TEST_F(TreePaneTest, LeavesWhatASearchHidesForWhatIsChosen)
{
    pane.SelectByPath("video/mp4");
    QTest::keyClicks(&Search(), "webm");
    QTest::keyClick(&Search(), Qt::Key_Return);
    const auto chosen = pane.Current();
    EXPECT_EQ("WEBM", chosen.preset->FormatName());
    Search().clear();
    EXPECT_EQ(chosen, pane.Current());
    EXPECT_EQ(std::vector{chosen}, pane.Selected());
}

TEST_F(TreePaneTest, LeavesWhatASearchHidesWhenItIsRemoved)
{
    pane.SelectByPath("video/mp4");
    QTest::keyClicks(&Search(), "webm");
    const QSignalSpy spy(&pane, &TreePane::CurrentChanged);
    TreeEditor(document).Remove({pane.Current()});
    EXPECT_FALSE(pane.Current());
    EXPECT_EQ(1, spy.count());
}

TEST_F(TreePaneTest, HasWhatWasExpandedExpandedAfterASearch)
{
    const auto shown = [this](const char* name)
    { return Shown().match(Shown().index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0); };
    pane.View().expand(shown("Video"));
    QTest::keyClicks(&Search(), "mp");
    ASSERT_TRUE(pane.View().isExpanded(shown("Audio")));
    pane.View().collapse(shown("Video"));
    Search().clear();
    EXPECT_TRUE(pane.View().isExpanded(shown("Video")));
    EXPECT_FALSE(pane.View().isExpanded(shown("Audio")));
}

TEST_F(TreePaneTest, SaysWhatToDoWhereNothingIsFound)
{
    QTest::keyClicks(&Search(), "no such thing");
    EXPECT_EQ(0, Shown().rowCount());
    EXPECT_TRUE(Count().text().contains("Esc"));
    QTest::keyClick(&Search(), Qt::Key_Escape);
    EXPECT_EQ("", Search().text());
}

TEST_F(TreePaneTest, SelectsByTheEndOfAPath)
{
    EXPECT_TRUE(pane.SelectByPath("video/mp4"));
    EXPECT_EQ("MP4", NameOf(pane.Current()));
    EXPECT_FALSE(pane.SelectByPath("no/such/preset"));
}

TEST_F(TreePaneTest, EndsASearchThatHidesWhatIsSelected)
{
    QTest::keyClicks(&Search(), "webm");
    EXPECT_TRUE(pane.SelectByPath("video/mp4"));
    EXPECT_EQ("", Search().text());
    EXPECT_EQ("MP4", NameOf(pane.Current()));
}

TEST_F(TreePaneTest, EditsANameInPlace)
{
    pane.SelectByPath("video/mp4");
    pane.EditName();
    auto* editor = pane.View().viewport()->findChild<QLineEdit*>();
    ASSERT_NE(nullptr, editor);
    QTest::keyClicks(editor, "Film");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return NameOf(pane.Current()) == "Film"; }, kPatience));
}

TEST_F(TreePaneTest, HasNoCurrentItemAfterAnotherDocument)
{
    pane.SelectByPath("video/mp4");
    document.SetContent(BuiltInContent(), {});
    EXPECT_FALSE(pane.Current());
    EXPECT_EQ(document.Root(), pane.CurrentCategory());
}

TEST_F(TreePaneTest, SearchesTwentyThousandPresetsWithoutAHang)
{
    AddMany(20000);
    QElapsedTimer timer;
    timer.start();
    QTest::keyClicks(&Search(), "preset 77");
    RecordProperty("milliseconds", static_cast<int>(timer.elapsed()));
    EXPECT_LT(timer.elapsed(), 5000) << "for nine keys";
    EXPECT_TRUE(Count().text().startsWith("560 ")) << qPrintable(Count().text()); // numbers with "77" in them
}

TEST_F(TreePaneTest, MovesThousandsAndBackWithoutAHang)
{
    const auto category = AddMany(20000);
    pane.View().expandAll();
    std::vector<TreeItem> items;
    for (int i = 0; i < 5000; ++i)
        items.push_back({{}, category->GetFormatPreset(3 * i)});
    pane.Select(items);
    TreeEditor editor(document);
    QElapsedTimer timer;
    timer.start();
    editor.Move(items, {document.Root()->FindChild("Video")});
    document.Undo().undo();
    editor.Copy(items, {document.Root()->FindChild("Video")});
    document.Undo().undo();
    editor.Remove(items);
    document.Undo().undo();
    RecordProperty("milliseconds", static_cast<int>(timer.elapsed()));
    EXPECT_LT(timer.elapsed(), 30'000); // one by one it takes minutes
    EXPECT_EQ("preset 14997", items.back().preset->Name());
    EXPECT_EQ(items.back().preset, category->GetFormatPreset(14997));
}

TEST_F(TreePaneTest, ShowsNothingOnTheWayWhereManyPresetsGo)
{
    const auto video = document.Root()->FindChild("Video");
    std::vector<TreeItem> items;
    for (int i = 0; i < video->FormatPresetCount(); ++i)
        items.push_back({{}, video->GetFormatPreset(i)});
    pane.Select(items);
    const QAbstractItemModelTester tester(&Shown(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy spy(&pane, &TreePane::CurrentChanged);
    TreeEditor(document).Remove(items);
    EXPECT_EQ(1, spy.count());
    EXPECT_EQ(TreeItem{video}, pane.Current());
    document.Undo().undo();
    EXPECT_EQ(static_cast<int>(items.size()), video->FormatPresetCount());
}

TEST_F(TreePaneTest, KeepsUpWithManyThatStandApart)
{
    const auto category = AddMany(100);
    pane.View().expandAll();
    std::vector<TreeItem> items;
    for (int i = 0; i < category->FormatPresetCount(); i += 2)
        items.push_back({{}, category->GetFormatPreset(i)});
    pane.Select(items);
    const QAbstractItemModelTester tester(&Shown(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    TreeEditor(document).Remove(items);
    EXPECT_EQ("preset 99", NameOf({{}, category->GetFormatPreset(49)}));
    EXPECT_EQ(TreeItem{category}, pane.Current());
    document.Undo().undo();
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ("preset " + std::to_string(i), category->GetFormatPreset(i)->Name());
    document.Undo().redo();
    EXPECT_EQ("preset 1", NameOf({{}, category->GetFormatPreset(0)}));
}

TEST_F(TreePaneTest, KeepsSelectedWhatIsMovedAndMovedBack)
{
    const auto category = AddMany(100);
    pane.View().expandAll();
    const std::vector<TreeItem> items{{{}, category->GetFormatPreset(3)},
                                      {{}, category->GetFormatPreset(70)}};
    pane.Select(items);
    TreeEditor(document).Move(items, {document.Root()->FindChild("Customised")});
    EXPECT_EQ(items, pane.Selected());
    document.Undo().undo();
    EXPECT_EQ(items, pane.Selected());
    EXPECT_EQ(items.front(), pane.Current());
}

TEST_F(TreePaneTest, StaysWhereItIsWhenSomethingIsAskedForThatIsGone)
{
    const auto video = document.Root()->FindChild("Video");
    const TreeItem inside{video->GetChild(0)};
    TreeEditor(document).Remove({{video}});
    pane.SelectByPath("Audio/MP3");
    QTest::keyClicks(&Search(), "mp3");
    pane.Select({inside});
    EXPECT_EQ("MP3", NameOf(pane.Current()));
    EXPECT_EQ("mp3", Search().text());
}

TEST_F(TreePaneTest, GoesWithARecentPresetThatBecomesOnesOwn)
{
    const auto used = document.Root()->FindChild("Video")->FindFormatPreset("MP4");
    document.NoteUsed(*used, *used);
    pane.SelectByPath("Recently Used/MP4");
    const auto current = pane.Current();
    const QSignalSpy told(&pane, &TreePane::Told);
    const QSignalSpy spy(&pane, &TreePane::CurrentChanged);
    document.EditPreset(current.preset, "Bounds", [](IVXFormatPreset& preset) { preset.SetMaxWidth(77); });
    EXPECT_EQ(current, pane.Current());
    EXPECT_EQ(0, spy.count());
    ASSERT_EQ(1, told.count());
    EXPECT_TRUE(told.at(0).at(0).toString().contains("\"MP4\" stands in \"Customised\""));
    EXPECT_EQ("Customised", pane.View().currentIndex().parent().data().toString());
}

TEST_F(TreePaneTest, TellsWhatToDoWithADocumentWithoutPresets)
{
    EXPECT_FALSE(Count().isVisible());
    const auto root = IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    document.SetContent({root, std::make_shared<DocumentBasis>()}, {});
    EXPECT_TRUE(Count().isVisible());
    EXPECT_TRUE(Count().text().contains("New Preset"));
    EXPECT_TRUE(Count().text().contains("Import"));
    TreeEditor(document).AddPreset(document.Root(), "MP4");
    EXPECT_FALSE(Count().isVisible());
}

} // namespace
