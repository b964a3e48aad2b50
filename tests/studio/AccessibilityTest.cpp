#include "StudioWindowFixture.h"

#include "apps/studio/document/TreeEditor.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "tests/media/MediaMaker.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QAccessible>
#include <QComboBox>
#include <QTabWidget>
#include <QTreeView>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

/// What a screen reader finds.
class AccessibilityTest : public StudioWindowTest
{
protected:
    /// The widgets that the keyboard reaches now.
    std::vector<QWidget*> Reachable()
    {
        std::vector<QWidget*> reachable;
        for (auto* widget : window->findChildren<QWidget*>())
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
                widget->focusProxy() == nullptr)
                reachable.push_back(widget);
        return reachable;
    }

    static std::string PathOf(const QWidget* widget)
    {
        std::string path;
        for (; widget != nullptr; widget = widget->parentWidget())
            path += std::string(widget->metaObject()->className()) + ' ' +
                    widget->objectName().toStdString() + " < ";
        return path;
    }

    static void ExpectTold(QWidget* widget)
    {
        auto* told = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(nullptr, told) << PathOf(widget);
        EXPECT_NE("", told->text(QAccessible::Name).toStdString()) << PathOf(widget);
        EXPECT_NE(QAccessible::NoRole, told->role()) << PathOf(widget);
        EXPECT_NE(QAccessible::Client, told->role()) << PathOf(widget);
    }

    void ExpectAllTold()
    {
        const auto reachable = Reachable();
        EXPECT_GT(reachable.size(), 3U);
        for (auto* widget : reachable)
            ExpectTold(widget);
    }
};

TEST_F(AccessibilityTest, EverythingThatTakesKeysHasANameAndARole)
{
    ExpectAllTold();
    window->Tree().Select({{window->Document().Root()->FindChild("Video")}});
    ExpectAllTold();
}

TEST_F(AccessibilityTest, EachFieldOfAPresetHasANameAndARole)
{
    for (const auto* path : {"Video/MP4", "Audio/MP3"})
    {
        window->Tree().SelectByPath(path);
        auto& tabs = The<QTabWidget>("streams");
        for (int page = 0; page < tabs.count(); ++page)
        {
            tabs.setCurrentIndex(page);
            ExpectAllTold();
        }
    }
}

TEST_F(AccessibilityTest, EverythingOfAnOutcomeHasANameAndARole)
{
    window->Tree().SelectByPath("Video/MP4");
    QSignalSpy opened(&window->Outcome(), &OutcomePane::SourceOpened);
    window->Outcome().OpenSource(QString::fromStdString(Media::Clip("film.mp4")));
    ASSERT_TRUE(opened.wait(kPatience));
    ExpectAllTold();
}

TEST_F(AccessibilityTest, FieldsTellTheirValues)
{
    window->Tree().SelectByPath("Video/MP4");
    auto* told = QAccessible::queryAccessibleInterface(&The<QLineEdit>("name"));
    EXPECT_EQ("MP4", told->text(QAccessible::Value).toStdString());
    for (auto* combo : window->findChildren<QComboBox*>())
        if (combo->isVisible() && combo->currentIndex() >= 0)
        {
            EXPECT_EQ(combo->currentText().toStdString(),
                      QAccessible::queryAccessibleInterface(combo)->text(QAccessible::Value).toStdString());
        }
}

TEST_F(AccessibilityTest, TheTreeTellsWhatItsPicturesShow)
{
    window->Tree().SelectByPath("Video/MP4");
    const auto preset = window->Tree().View().currentIndex();
    EXPECT_TRUE(preset.data(Qt::AccessibleDescriptionRole).toString().startsWith("Preset, MP4"));
    EXPECT_TRUE(preset.parent().data(Qt::AccessibleDescriptionRole).toString().startsWith("Category"));
}

} // namespace
