#include "StudioWindow.h"

#include "BusyLine.h"
#include "FileActions.h"
#include "apps/studio/ShownText.h"
#include "apps/studio/outcome/OutcomePane.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>

namespace Vexlor::Studio
{

namespace
{

constexpr QSize kDefaultSize{1280, 800};
constexpr auto* kGeometry = "window/geometry";
constexpr auto* kState = "window/state";
constexpr auto* kSplitter = "window/splitter";
constexpr auto* kTheme = "window/theme";
constexpr auto* kFitting = "output/fitting";
constexpr auto* kOutputFolder = "output/folder";

} // namespace

// Nothing may be changed while a document is read or written.
void StudioWindow::SetBusy(bool isBusy)
{
    if (isBusy)
        m_focus = focusWidget();
    centralWidget()->setEnabled(!isBusy);
    menuBar()->setEnabled(!isBusy); // and its shortcuts with it
    auto& files = m_files->Files();
    const auto name = QFileInfo(files.File()).fileName();
    if (!isBusy)
        m_busy->End(BusyLine::Work::Document);
    else if (files.IsReading())
        m_busy->Begin(BusyLine::Work::Document, tr("Reading \"%1\"…").arg(name),
                      [&files] { files.GiveUpReading(); });
    else
        m_busy->Begin(BusyLine::Work::Document, tr("Writing \"%1\"…").arg(name), nullptr);
    if (!isBusy && m_focus)
        m_focus->setFocus();
}

bool StudioWindow::IsAtRest() const
{
    return !m_files->Files().IsBusy() && !m_outcome->IsReading() && AsideCount() == 0;
}

// A file that does not answer keeps nobody from closing.
bool StudioWindow::MayLeaveFile()
{
    auto& files = m_files->Files();
    files.GiveUpReading();
    return !files.IsBusy() ||
           QMessageBox::question(
               this, tr("Document"),
               AsPlainText(tr("\"%1\" is still being written. Close without waiting for it?")
                               .arg(QFileInfo(files.File()).fileName()))) == QMessageBox::Yes;
}

bool StudioWindow::MayStopConversion()
{
    return !m_outcome->IsConverting() ||
           QMessageBox::question(this, tr("Conversion"), tr("A conversion is running. Stop it and close?")) ==
               QMessageBox::Yes;
}

void StudioWindow::closeEvent(QCloseEvent* event)
{
    if (!m_mayClose && (!MayLeaveFile() || !MayStopConversion()))
        return event->ignore();
    const bool isWriting = m_files->Files().IsBusy();
    if (!m_mayClose && !isWriting && m_document.IsModified())
    {
        event->ignore();
        return m_files->WhenNothingIsLost(
            [this]
            {
                m_mayClose = true;
                QMetaObject::invokeMethod(this, "close", Qt::QueuedConnection);
            });
    }
    if (isWriting)
        m_recovery.Leave();
    StoreState();
    event->accept();
}

void StudioWindow::RestoreState()
{
    if (!restoreGeometry(UserSettings::Value(kGeometry).toByteArray()))
        resize(kDefaultSize);
    restoreState(UserSettings::Value(kState).toByteArray());
    m_splitter->restoreState(UserSettings::Value(kSplitter).toByteArray());
    m_findingsDock->hide(); // what it showed is gone
    m_themes.Use(Themes::ThemeOf(UserSettings::Value(kTheme).toString()));
    m_outcome->SetHabits(
        {UserSettings::Value(kFitting).toInt(), UserSettings::Value(kOutputFolder).toString()});
}

void StudioWindow::StoreState() const
{
    m_settings.Store(kGeometry, saveGeometry());
    m_settings.Store(kState, saveState());
    m_settings.Store(kSplitter, m_splitter->saveState());
    const auto habits = m_outcome->Habits();
    m_settings.Store(kFitting, habits.fitting);
    m_settings.Store(kOutputFolder, habits.folder);
}

void StudioWindow::UseTheme(Theme theme)
{
    m_settings.Store(kTheme, Themes::NameOf(theme));
    m_themes.Use(theme);
}

} // namespace Vexlor::Studio
