#include "StudioWindowFixture.h"

#include "apps/studio/ShownText.h"
#include "apps/studio/document/TreeEditor.h"
#include "apps/studio/outcome/ElidedLabel.h"
#include "apps/studio/outcome/OutcomeModel.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/tree/FormatTreeModel.h"
#include "tests/media/MediaMaker.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTextDocument>
#include <QTreeView>

#include <algorithm>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

using Node = std::shared_ptr<IVXFormatNode>;

/// A document whose names nobody in their senses would choose.
class HostileNamesTest : public StudioWindowTest
{
protected:
    /// One preset of that name, which becomes the current one.
    TreeItem Show(const std::string& name, const std::string& description = {})
    {
        const auto root = IVXFormatNode::MallocFormatNode(Node());
        const auto category = IVXFormatNode::MallocFormatNode(root);
        category->SetName("Category");
        category->AddFormatPreset(IVXFormatPreset::MallocFormatPreset("MP4", ""));
        const TreeItem preset{{}, category->FirstFormatPreset()};
        SetLook(preset, {QString::fromStdString(name), QString::fromStdString(description), 0});
        window->Document().SetContent({root, std::make_shared<DocumentBasis>()}, {});
        window->Tree().Select({preset});
        return preset;
    }
    QVariant Data(int role) { return window->Tree().View().currentIndex().data(role); }
    static QString Spoken(const QString& html)
    {
        QTextDocument text;
        text.setHtml(html);
        return text.toPlainText();
    }
};

struct NameCase
{
    const char* name;
    const char* shown;
};

class ShownName : public HostileNamesTest, public testing::WithParamInterface<NameCase>
{
};

TEST_P(ShownName, IsOnOneLineAndStaysAsItIs)
{
    const auto preset = Show(GetParam().name);
    EXPECT_EQ(GetParam().shown, Data(Qt::DisplayRole).toString().toStdString());
    EXPECT_EQ(GetParam().name, Data(Qt::EditRole).toString().toStdString());
    QTest::keyClick(&window->Tree().View(), Qt::Key_F2);
    QTest::keyClick(window->Tree().View().viewport()->findChild<QLineEdit*>(), Qt::Key_Return);
    QCoreApplication::processEvents(); // what was typed is stored then
    EXPECT_EQ(GetParam().name, preset.preset->Name());
    EXPECT_EQ(0, window->Document().Undo().count());
}

INSTANTIATE_TEST_SUITE_P(Names, ShownName,
                         testing::Values(NameCase{"A & B", "A & B"}, NameCase{"<b>x</b>", "<b>x</b>"},
                                         NameCase{" blanks ", " blanks "}, NameCase{"", "(no name)"},
                                         NameCase{"שלום MP4", "שלום MP4"},
                                         NameCase{"one\x1B[31mtwo", "one\xEF\xBF\xBD[31mtwo"},
                                         NameCase{"a\xE2\x80\xAE"
                                                  "b",
                                                  "a\xEF\xBF\xBD"
                                                  "b"}));

TEST_F(HostileNamesTest, ALineBreakIsShownAsAMark)
{
    Show("one\ntwo");
    EXPECT_EQ("one\xEF\xBF\xBDtwo", Data(Qt::DisplayRole).toString().toStdString());
}

TEST_F(HostileNamesTest, MarkupIsNoMarkupInTips)
{
    Show("<b>x</b>", "<i>y</i>\n& z");
    EXPECT_EQ("<b>x</b> (MP4)\n<i>y</i>\n& z", Spoken(Data(Qt::ToolTipRole).toString()));
    EXPECT_EQ("<u>x</u>", Spoken(AsPlainText("<u>x</u>")));
    EXPECT_EQ("x < y", AsPlainText("x < y"));
}

TEST_F(HostileNamesTest, TipsAreNotLongerThanTheScreen)
{
    Show("x", std::string(100'000, 'w'));
    EXPECT_LT(Data(Qt::ToolTipRole).toString().size(), 1100);
}

TEST_F(HostileNamesTest, StepsHaveNoKeysOfTheirNames)
{
    Show("&File & <b>all</b>");
    QTest::keyClick(&window->Tree().View(), Qt::Key_Delete);
    EXPECT_EQ("Delete \"&&File && <b>all</b>\"", window->Document().Undo().undoText());
}

TEST_F(HostileNamesTest, StepsAreNoWiderThanAMenu)
{
    Show(std::string(300, 'W') + '\n');
    QTest::keyClick(&window->Tree().View(), Qt::Key_Delete);
    EXPECT_LE(window->Document().Undo().undoText().size(), 61);
    EXPECT_FALSE(MenuText(QString(59, 'W') + QString::fromUtf8("😀😀")).contains(QChar(0xD83D)));
}

TEST_F(HostileNamesTest, NoNameMakesTheWindowWider)
{
    const int width = window->minimumSizeHint().width();
    Show(std::string(300, 'W'), std::string(300, 'W'));
    EXPECT_EQ(width, window->minimumSizeHint().width());
}

TEST_F(HostileNamesTest, FilesAreNoMarkupInTipsAndOnOneLineInMenus)
{
    const auto path = folder.filePath("<b>x\n&.mov");
    ASSERT_TRUE(QFile::copy(QString::fromStdString(Media::Clip("film.mp4")), path));
    QSignalSpy opened(&window->Outcome(), &OutcomePane::SourceOpened);
    window->Outcome().OpenSource(path);
    ASSERT_TRUE(opened.wait(kPatience));
    int tips = 0;
    for (const auto* widget : window->findChildren<QWidget*>())
        if (const auto tip = widget->toolTip(); tip.contains("x\n&"))
        {
            EXPECT_EQ(AsPlainText(path), tip) << qPrintable(widget->objectName());
            ++tips;
        }
    EXPECT_GT(tips, 0);
    const auto actions = window->findChildren<QAction*>();
    const auto isRecent = [](const QAction* action) { return action->text().contains("<b>x"); };
    const auto recent = std::ranges::find_if(actions, isRecent);
    ASSERT_NE(actions.end(), recent);
    EXPECT_TRUE((*recent)->text().endsWith("<b>x\uFFFD&&.mov")) << qPrintable((*recent)->text());
    EXPECT_FALSE((*recent)->statusTip().contains('\n'));
}

TEST_F(HostileNamesTest, ReasonsAreNoMarkupInTips)
{
    OutcomeModel model;
    OutcomeRow row;
    row.why = "<b>x</b>";
    model.SetRows({row});
    EXPECT_EQ("<b>x</b>", Spoken(model.index(0, OutcomeModel::Output).data(Qt::ToolTipRole).toString()));
    ElidedLabel label;
    label.SetWholeText("<b>x</b>");
    EXPECT_EQ("<b>x</b>", Spoken(label.toolTip()));
    EXPECT_EQ(Qt::PlainText, The<QLabel>("predictedSize").textFormat());
}

TEST_F(HostileNamesTest, DeepNamesAreToBeRead)
{
    auto node = IVXFormatNode::MallocFormatNode(Node());
    const auto root = node;
    for (int level = 1; level <= 13; ++level)
    {
        node = IVXFormatNode::MallocFormatNode(node);
        node->SetName("Level " + std::to_string(level));
    }
    node->AddFormatPreset(IVXFormatPreset::MallocFormatPreset("MP4", ""));
    node->FirstFormatPreset()->SetName("The deepest");
    window->Document().SetContent({root, std::make_shared<DocumentBasis>()}, {});
    auto& view = window->Tree().View();
    const int normal = view.indentation();
    window->Tree().Select({{{}, node->FirstFormatPreset()}});
    const auto isReadable = [&view]
    {
        const auto rect = view.visualRect(view.currentIndex()) & view.viewport()->rect();
        return rect.width() - view.iconSize().width() > view.fontMetrics().horizontalAdvance("The deepest");
    };
    EXPECT_TRUE(QTest::qWaitFor(isReadable, kPatience)) << view.visualRect(view.currentIndex()).left();
    view.collapseAll();
    EXPECT_TRUE(QTest::qWaitFor([&view, normal] { return view.indentation() == normal; }, kPatience));
}

TEST_F(HostileNamesTest, DuplicatesAreOtherPresets)
{
    const auto first = Show("same");
    const auto category = window->Document().Root()->GetChild(0);
    category->AddFormatPreset(first.preset->Clone());
    window->Document().SetContent({window->Document().Root(), std::make_shared<DocumentBasis>()}, {});
    const TreeItem second{{}, category->LastFormatPreset()};
    window->Tree().Select({second});
    QTest::keyClick(&window->Tree().View(), Qt::Key_Delete);
    EXPECT_EQ(first, window->Tree().Current());
    window->Document().Undo().undo();
    EXPECT_EQ(second.preset, category->GetFormatPreset(1));
}

} // namespace
