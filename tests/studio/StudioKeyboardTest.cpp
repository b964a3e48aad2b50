#include "StudioWindowFixture.h"

#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/window/Languages.h"
#include "apps/studio/window/PresetActions.h"
#include "tests/media/MediaMaker.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeView>

#include <array>
#include <set>
#include <string>
#include <vector>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

/// What is in the window that the keyboard has to do with.
enum class Scene
{
    Start,    ///< nothing is picked
    Category, ///< one is picked
    Video,    ///< a preset and a source, with the page of the picture
    Audio,    ///< the same with the page of the sound
    Message,  ///< the same with all that can be said above it
    Question, ///< a file is there already
    Findings, ///< of a check
};

class StudioSceneTest : public StudioWindowTest
{
protected:
    void Show(Scene scene)
    {
        window->resize(1400, 1000);
        if (scene == Scene::Start)
            window->Tree().View().setCurrentIndex({});
        else if (scene == Scene::Category)
            window->Tree().Select({{window->Document().Root()->FindChild("Video")}});
        else
            ShowPreset(scene);
        QCoreApplication::processEvents();
    }
    /// Waits for a dialog that asks for a file.
    bool HasDialog()
    {
        return QTest::qWaitFor([this] { return window->findChild<QFileDialog*>() != nullptr; }, kPatience);
    }

private:
    void ShowPreset(Scene scene)
    {
        ASSERT_TRUE(window->Tree().SelectByPath("Video/MP4"));
        const auto preset = window->Tree().Current().preset;
        window->Document().EditPreset(preset, "Codecs", ChooseCodecs);
        QSignalSpy opened(&window->Outcome(), &OutcomePane::SourceOpened);
        window->Outcome().OpenSource(QString::fromStdString(Media::Clip("film.mp4")));
        ASSERT_TRUE(opened.wait(kPatience));
        The<QTabWidget>("streams").setCurrentIndex(scene == Scene::Audio ? 1 : 0);
        if (scene == Scene::Message)
            SayAll();
        else if (scene == Scene::Question)
            AskToReplace();
        else if (scene == Scene::Findings)
            Check();
    }
    static void ChooseCodecs(IVXFormatPreset& preset)
    {
        preset.SetIndexForVideoCodecPresets(1);
        preset.SetIndexForAudioCodecPresets(1);
    }
    void SayAll()
    {
        emit window->Files().Files().SaveRefused("/mine.json");
        emit window->Lost().FailureChanged("/recovery: No space left on device");
    }
    void AskToReplace()
    {
        QFile there(folder.filePath("out.mp4"));
        ASSERT_TRUE(there.open(QIODevice::WriteOnly));
        there.close();
        window->Outcome().ConvertTo(there.fileName());
    }
    void Check()
    {
        QSignalSpy found(&window->Presets(), &PresetActions::Found);
        window->Document().EditPreset(window->Tree().Current().preset, "Bounds",
                                      [](IVXFormatPreset& changed)
                                      {
                                          changed.SetMaxWidth(100);
                                          changed.SetMinWidth(200);
                                      });
        window->Presets().Check();
        ASSERT_TRUE(found.wait(kPatience));
    }
};

std::string NameOfScene(Scene scene)
{
    static const std::array kNames{"Start", "Category", "Video", "Audio", "Message", "Question", "Findings"};
    return kNames[static_cast<std::size_t>(scene)];
}

constexpr std::array kScenes{Scene::Start,   Scene::Category, Scene::Video,   Scene::Audio,
                             Scene::Message, Scene::Question, Scene::Findings};

/// The letter of a text's mnemonic; empty where it has none.
QString MnemonicOf(const QString& text)
{
    const auto keys = QKeySequence::mnemonic(text);
    return keys.isEmpty() ? QString() : keys.toString();
}

QStringList MnemonicsOf(const QList<QAction*>& actions)
{
    QStringList mnemonics;
    for (const auto* action : actions)
        mnemonics << MnemonicOf(action->text());
    mnemonics.removeAll(QString());
    return mnemonics;
}

QStringList MnemonicsOf(const QWidget& widget)
{
    QStringList mnemonics;
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        mnemonics << MnemonicOf(button->text());
    else if (const auto* label = qobject_cast<const QLabel*>(&widget); label && label->buddy())
        mnemonics << MnemonicOf(label->text());
    else if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
        mnemonics << MnemonicOf(box->title());
    else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        for (int i = 0; i < tabs->count(); ++i)
            mnemonics << MnemonicOf(tabs->tabText(i));
    mnemonics.removeAll(QString());
    return mnemonics;
}

QStringList Doubles(QStringList all)
{
    auto once = all;
    once.removeDuplicates();
    for (const auto& one : once)
        all.removeOne(one);
    return all;
}

struct Case
{
    const char* language;
    Scene scene;
};

class StudioMnemonicsTest : public StudioSceneTest, public testing::WithParamInterface<Case>
{
protected:
    StudioMnemonicsTest() : m_languages(GetParam().language) { OpenWindow(); }
    ~StudioMnemonicsTest() override { QLocale::setDefault(QLocale::c()); }

private:
    const Languages m_languages;
};

std::vector<Case> Cases()
{
    std::vector<Case> cases;
    for (const auto* language : {"en", "de"})
        for (const auto scene : kScenes)
            cases.push_back({language, scene});
    return cases;
}

TEST_P(StudioMnemonicsTest, LeadToOneThingEach)
{
    Show(GetParam().scene);
    auto mnemonics = MnemonicsOf(window->menuBar()->actions());
    for (const auto* widget : window->findChildren<QWidget*>())
        if (widget->isVisible())
            mnemonics += MnemonicsOf(*widget);
    EXPECT_GE(mnemonics.size(), 6);
    EXPECT_EQ(QStringList(), Doubles(mnemonics)) << qPrintable(mnemonics.join(' '));
}

TEST_P(StudioMnemonicsTest, LeadToOneEntryOfAMenuEach)
{
    Show(GetParam().scene);
    for (const auto* menu : window->findChildren<QMenu*>())
        EXPECT_EQ(QStringList(), Doubles(MnemonicsOf(menu->actions()))) << qPrintable(menu->title());
}

INSTANTIATE_TEST_SUITE_P(Scenes, StudioMnemonicsTest, testing::ValuesIn(Cases()),
                         [](const auto& test)
                         { return test.param.language + NameOfScene(test.param.scene); });

TEST_F(StudioSceneTest, IsInGermanWhereItIsToldTo)
{
    const Languages german("de");
    OpenWindow();
    EXPECT_EQ("&Datei", window->menuBar()->actions().front()->text());
    QLocale::setDefault(QLocale::c());
}

TEST_F(StudioSceneTest, OpensMediaByTheMnemonicOfThePane)
{
    Show(Scene::Video);
    QTest::keyClick(window.get(), Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(HasDialog());
}

TEST_F(StudioSceneTest, AsksForTheOutputByTheMnemonicOfThePane)
{
    Show(Scene::Message);
    QTest::keyClick(window.get(), Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(HasDialog());
}

using Widgets = std::set<const QWidget*>;

QString Told(const QWidget& widget)
{
    return QString("%1 %2 (%3)")
        .arg(widget.metaObject()->className(), widget.objectName(), widget.accessibleName());
}

class StudioFocusTest : public StudioSceneTest, public testing::WithParamInterface<Scene>
{
protected:
    /// A part of a control, which stands for it.
    static bool IsPart(const QWidget& widget)
    {
        const auto* parent = widget.parentWidget();
        return widget.focusProxy() != nullptr || qobject_cast<const QAbstractSpinBox*>(parent) ||
               parent->inherits("QComboBoxPrivateContainer") || parent->inherits("QComboBox");
    }
    /// What is to be reached by Tab.
    Widgets Controls() const
    {
        Widgets controls;
        for (const auto* widget : window->findChildren<QWidget*>())
            if ((widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget->isVisible() &&
                widget->isEnabled() && widget->window() == window.get() && !IsPart(*widget))
                controls.insert(widget);
        return controls;
    }
    /// What the keyboard comes to until it is where it has been.
    Widgets Walk(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        constexpr int kMost = 300;
        Widgets reached;
        window->Tree().View().setFocus();
        const auto* first = window->focusWidget();
        for (int i = 0; i < kMost; ++i)
        {
            reached.insert(window->focusWidget());
            const auto* before = window->focusWidget();
            QTest::keyClick(window->focusWidget(), key, modifiers);
            EXPECT_NE(before, window->focusWidget()) << "a trap: " << qPrintable(Told(*before));
            if (window->focusWidget() == first || window->focusWidget() == before)
                break;
        }
        EXPECT_EQ(first, window->focusWidget()) << "does not come round";
        return reached;
    }
    void ExpectAll(const Widgets& reached)
    {
        for (const auto* control : Controls())
            EXPECT_TRUE(reached.contains(control)) << qPrintable(Told(*control));
        EXPECT_GE(reached.size(), 3U);
    }
};

TEST_P(StudioFocusTest, GoesToEveryControlByTab)
{
    Show(GetParam());
    ExpectAll(Walk(Qt::Key_Tab));
}

TEST_P(StudioFocusTest, GoesBackToEveryControl)
{
    Show(GetParam());
    ExpectAll(Walk(Qt::Key_Backtab, Qt::ShiftModifier));
}

TEST_P(StudioFocusTest, HasANameForEveryControl)
{
    Show(GetParam());
    for (const auto* control : Controls())
    {
        const auto* interface = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(control));
        ASSERT_NE(nullptr, interface);
        EXPECT_NE("", interface->text(QAccessible::Name)) << qPrintable(Told(*control));
    }
}

INSTANTIATE_TEST_SUITE_P(Scenes, StudioFocusTest, testing::ValuesIn(kScenes),
                         [](const auto& test) { return NameOfScene(test.param); });

} // namespace
