#pragma once

#include "apps/studio/document/RecentStore.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/tree/TreePane.h"
#include "apps/studio/window/FileActions.h"
#include "apps/studio/window/StudioWindow.h"
#include "tests/studio/Patience.h"

#include "IVXFormatPreset.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>

namespace Vexlor::Studio
{

/// A window, driven with keys and clicks.
class StudioWindowTest : public testing::Test
{
protected:
    StudioWindowTest()
    {
        QSettings().clear();
        QDir(Recovery::Folder()).removeRecursively();
        QFile::remove(RecentStore::Path());
        OpenWindow();
    }

    /// A new window, as after the program has ended; the one before goes.
    void OpenWindow()
    {
        window.reset();
        window = std::make_unique<StudioWindow>();
        window->show();
        window->activateWindow(); // or shortcuts lead nowhere
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    template <typename Widget>
    Widget& The(const char* name)
    {
        auto* widget = window->findChild<Widget*>(name);
        EXPECT_NE(nullptr, widget) << name;
        return *widget;
    }

    /// Answers the next message box with that button.
    void AnswerNext(QMessageBox::StandardButton button)
    {
        QTimer::singleShot(50, window.get(),
                           [button]
                           {
                               auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                               ASSERT_NE(nullptr, box);
                               QTest::mouseClick(box->button(button), Qt::LeftButton);
                           });
    }

    void Open(const QString& path)
    {
        QSignalSpy opened(&window->Files().Files(), &DocumentFiles::Opened);
        window->Files().Open(path);
        ASSERT_TRUE(opened.wait(kPatience));
    }

    void SaveTo(const QString& path)
    {
        QSignalSpy saved(&window->Files().Files(), &DocumentFiles::Saved);
        window->Files().Files().Save(path, true);
        ASSERT_TRUE(saved.wait(kPatience));
    }

    /// As if the current preset had been converted with.
    void Convert()
    {
        const auto preset = window->Tree().Current().preset;
        emit window->Outcome().ConversionStarted();
        emit window->Outcome().ConversionDone(preset, preset->Clone());
    }

    void FindAndSelect(const QString& text)
    {
        QTest::keyClicks(&The<QLineEdit>("search"), text);
        QTest::keyClick(&The<QLineEdit>("search"), Qt::Key_Return);
    }

    QTemporaryDir folder;
    std::unique_ptr<StudioWindow> window;
};

} // namespace Vexlor::Studio
