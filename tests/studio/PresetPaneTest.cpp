#include "PresetPaneFixture.h"

#include "IVXFormatNode.h"

#include <QLayout>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QWheelEvent>

namespace Vexlor::Studio
{

namespace
{

TEST_F(PresetPaneTest, SaysWhatToDoWithoutAPreset)
{
    pane.ShowItem({});
    EXPECT_TRUE(pane.findChild<QLabel*>("empty")->isVisible());
    EXPECT_FALSE(pane.findChild<QLineEdit*>("name")->isVisible());
}

TEST_F(PresetPaneTest, ShowsWhatThePresetIsCalled)
{
    EXPECT_FALSE(pane.findChild<QLabel*>("empty")->isVisible());
    EXPECT_EQ("Phone", pane.findChild<QLineEdit*>("name")->text());
}

TEST_F(PresetPaneTest, TypingANameIsOneStep)
{
    auto& name = *pane.findChild<QLineEdit*>("name");
    Type(name, "Tablet");
    EXPECT_EQ("Tablet", preset->Name());
    EXPECT_EQ(1, document.Undo().count());
    EXPECT_EQ("Change name", document.Undo().undoText());
    document.Undo().undo();
    EXPECT_EQ("Phone", preset->Name());
    EXPECT_EQ("Phone", name.text());
}

TEST_F(PresetPaneTest, EachVisitToAFieldIsAStepOfItsOwn)
{
    auto& name = *pane.findChild<QLineEdit*>("name");
    Type(name, "Tablet");
    QTest::keyClick(&name, Qt::Key_Return);
    Type(name, "Car");
    EXPECT_EQ(2, document.Undo().count());
}

TEST_F(PresetPaneTest, KeepsTheCursorWhereOneTypes)
{
    auto& name = *pane.findChild<QLineEdit*>("name");
    name.setFocus();
    name.setCursorPosition(2);
    QTest::keyClicks(&name, "xy");
    EXPECT_EQ("Phxyone", preset->Name());
    EXPECT_EQ(4, name.cursorPosition());
    EXPECT_TRUE(name.hasFocus());
}

TEST_F(PresetPaneTest, KeepsTheOldNameInPlaceOfNone)
{
    auto& name = *pane.findChild<QLineEdit*>("name");
    name.setFocus();
    name.selectAll();
    QTest::keyClick(&name, Qt::Key_Delete);
    EXPECT_EQ("Phone", preset->Name());
    EXPECT_TRUE(Messages(pane).contains("needs a name"));
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ("Phone", name.text());
    EXPECT_TRUE(Messages(pane).contains("needs a name"));
    QTest::keyClicks(&name, "s");
    EXPECT_FALSE(Messages(pane).contains("needs a name"));
}

TEST_F(PresetPaneTest, GoesBackToTheOldNameWhenItIsEmptiedLetterByLetter)
{
    auto& name = *pane.findChild<QLineEdit*>("name");
    name.setFocus();
    name.end(false);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(&name, Qt::Key_Backspace);
    EXPECT_EQ("P", preset->Name());
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ("Phone", preset->Name());
    EXPECT_EQ(0, document.Undo().count());
}

TEST_F(PresetPaneTest, TrimsAName)
{
    auto& name = *pane.findChild<QLineEdit*>("name");
    Type(name, " My phone ");
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ("My phone", preset->Name());
    EXPECT_EQ(1, document.Undo().count());
}

TEST_F(PresetPaneTest, KeepsTheOldNameInPlaceOfOneThatIsThere)
{
    const auto video = document.Root()->FindChild("Video");
    const auto mkv = video->FindFormatPreset("MKV");
    pane.ShowItem({{}, mkv});
    auto& name = *pane.findChild<QLineEdit*>("name");
    name.setFocus();
    name.selectAll();
    QTest::keyClicks(&name, "MP4");
    EXPECT_TRUE(Messages(pane).contains("is there already"));
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ("MKV", mkv->Name());
    EXPECT_EQ("MKV", name.text());
    EXPECT_TRUE(Messages(pane).contains("is there already"));
    pane.ShowItem({{}, preset});
    EXPECT_FALSE(Messages(pane).contains("is there already"));
}

TEST_F(PresetPaneTest, TakesANameThatBeginsWithOneThatIsThere)
{
    const auto mkv = document.Root()->FindChild("Video")->FindFormatPreset("MKV");
    pane.ShowItem({{}, mkv});
    auto& name = *pane.findChild<QLineEdit*>("name");
    Type(name, "MP4x");
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ("MP4x", mkv->Name());
}

TEST_F(PresetPaneTest, TypingADescriptionIsOneStep)
{
    auto& description = *pane.findChild<QPlainTextEdit*>("description");
    Type(description, "In the train.");
    EXPECT_EQ("In the train.", preset->Description());
    EXPECT_EQ(1, document.Undo().count());
    document.Undo().undo();
    EXPECT_EQ("", description.toPlainText());
}

TEST_F(PresetPaneTest, StoresThePickedIcon)
{
    auto& icon = *pane.findChild<QComboBox*>("icon");
    Pick(icon, "WEBM");
    EXPECT_EQ(20000002, preset->FaceID());
    EXPECT_EQ("Change icon to WEBM", document.Undo().undoText());
    EXPECT_FALSE(icon.itemIcon(icon.currentIndex()).isNull());
}

TEST_F(PresetPaneTest, ShowsTheNumberOfAnIconThatIsNotKnown)
{
    document.EditPreset(preset, "Icon", [](IVXFormatPreset& changed) { changed.SetFaceID(77); });
    const auto& icon = *pane.findChild<QComboBox*>("icon");
    EXPECT_EQ(-1, icon.currentIndex());
    EXPECT_EQ("Unknown icon 77", icon.placeholderText());
}

TEST_F(PresetPaneTest, ShowsWhatOthersChange)
{
    document.EditPreset(preset, "Rename", [](IVXFormatPreset& changed) { changed.SetName("Car"); });
    EXPECT_EQ("Car", pane.findChild<QLineEdit*>("name")->text());
}

TEST_F(PresetPaneTest, OpensAPresetOfSoundWithItsSound)
{
    Page(0);
    pane.ShowItem({{}, IVXFormatPreset::MallocFormatPreset("MP3", "")});
    EXPECT_EQ(1, pane.findChild<QTabWidget*>("streams")->currentIndex());
    EXPECT_TRUE(Messages(Page(0)).contains("MP3 holds no pictures."));
}

TEST_F(PresetPaneTest, EveryFieldHasANameForReadersOfTheScreen)
{
    Page(0);
    Entries("resolution");
    for (const auto* field : pane.findChildren<QWidget*>())
    {
        const bool isInput = qobject_cast<const QComboBox*>(field) || qobject_cast<const QSpinBox*>(field) ||
                             qobject_cast<const QListWidget*>(field) || field->objectName() == "edit";
        if (isInput && field->isVisible())
        {
            EXPECT_NE("", field->accessibleName()) << field->objectName().toStdString();
        }
    }
}

struct MnemonicCase
{
    Qt::Key key;
    const char* noun;
};

class Mnemonic : public PresetPaneTest, public testing::WithParamInterface<MnemonicCase>
{
};

TEST_P(Mnemonic, LeadsToItsField)
{
    Page(0);
    QTest::keyClick(&pane, GetParam().key, Qt::AltModifier);
    EXPECT_TRUE(Combo(GetParam().noun).hasFocus());
}

constexpr MnemonicCase kMnemonics[] = {{Qt::Key_R, "resolution"},
                                       {Qt::Key_Q, "quality"},
                                       {Qt::Key_X, "pixel format"},
                                       {Qt::Key_L, "level"},
                                       {Qt::Key_S, "sample aspect"}};
INSTANTIATE_TEST_SUITE_P(Keys, Mnemonic, testing::ValuesIn(kMnemonics),
                         [](const auto& test) { return std::string(1, static_cast<char>(test.param.key)); });

TEST_F(PresetPaneTest, TabGoesThroughAListAndItsEditor)
{
    Combo("resolution").setFocus();
    QTest::keyClick(&Combo("resolution"), Qt::Key_Tab);
    auto& edit = Button(Row("resolution"), "edit");
    EXPECT_TRUE(edit.hasFocus());
    QTest::keyClick(&edit, Qt::Key_Space);
    auto& input = Input("resolution");
    EXPECT_TRUE(input.hasFocus());
    QTest::keyClick(&input, Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(Entries("resolution").hasFocus());
}

TEST_F(PresetPaneTest, TabGoesThroughTheCodecsAsTheyStand)
{
    Codecs().setFocus();
    for (const auto* name : {"add", "remove", "up", "down"})
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(name, QApplication::focusWidget()->objectName());
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(Combo("resolution").hasFocus());
}

TEST_F(PresetPaneTest, LeavesTakingBackToTheDocument)
{
    auto& name = *pane.findChild<QLineEdit*>("name");
    Type(name, "Tablet");
    QKeyEvent ask(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    ask.ignore();
    QApplication::sendEvent(&name, &ask);
    EXPECT_FALSE(ask.isAccepted());
}

TEST_F(PresetPaneTest, TheWheelChangesNothingThatIsNotBeingEdited)
{
    auto& width = Number("largest width");
    QWheelEvent turn(QPointF(5, 5), width.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&width, &turn);
    EXPECT_EQ(0, preset->MaxWidth());
    width.setFocus();
    QApplication::sendEvent(&width, &turn);
    EXPECT_GT(preset->MaxWidth(), 0);
}

TEST_F(PresetPaneTest, GoesWhileAFieldIsBeingEdited)
{
    auto other = std::make_unique<PresetPane>(document);
    other->ShowItem({{}, preset});
    other->show();
    QApplication::setActiveWindow(other.get());
    other->findChild<QLineEdit*>("name")->setFocus();
    other.reset();
    EXPECT_EQ(0, document.Undo().count());
}

// What is narrow has its list above its page, and nothing wider than itself.
TEST_F(PresetPaneTest, FitsIntoANarrowPlace)
{
    Page(0);
    pane.resize(330, 900);
    QCoreApplication::processEvents();
    const auto& list = Codecs();
    const auto& combo = Combo("resolution");
    EXPECT_LT(list.mapTo(&pane, QPoint()).y() + list.height(), combo.mapTo(&pane, QPoint()).y());
    EXPECT_LE(combo.mapTo(&pane, QPoint(combo.width(), 0)).x(), 330);
}

} // namespace

TEST_F(PresetPaneTest, IsNoWiderForLongWords)
{
    auto& aspect = Row("sample aspect");
    auto& page = *aspect.parentWidget();
    const int width = page.minimumSizeHint().width();
    for (auto* label : page.findChildren<QLabel*>())
        if (label->buddy() == aspect.focusProxy())
            label->setText("Sample aspect of a pixel");
    page.layout()->activate();
    EXPECT_LE(page.minimumSizeHint().width(), width);
}

} // namespace Vexlor::Studio
