#include "StudioWindow.h"

#include "FileActions.h"
#include "MessageBar.h"
#include "OwnBitrates.h"
#include "PresetActions.h"
#include "RecentFiles.h"
#include "StartOptions.h"
#include "TreeActions.h"
#include "apps/studio/findings/FindingsPane.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/preset/PresetPane.h"
#include "apps/studio/tree/TreePane.h"

#include "IVXFormatPreset.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QThreadPool>
#include <QTreeView>
#include <QVBoxLayout>

namespace Vexlor::Studio
{

namespace
{

constexpr int kMessageTime = 6000; // milliseconds
constexpr QSize kDefaultSize{1280, 800};
constexpr auto* kGeometry = "window/geometry";
constexpr auto* kState = "window/state";
constexpr auto* kSplitter = "window/splitter";
constexpr auto* kTheme = "window/theme";
constexpr auto* kFitting = "output/fitting";
constexpr auto* kOutputFolder = "output/folder";

} // namespace

StudioWindow::StudioWindow(QWidget* parent)
    : QMainWindow(parent), m_recovery(m_document), m_recent(m_document),
      m_themeChoices(new QActionGroup(this)), m_messages(new MessageBar(this)),
      m_lossMessage(new MessageBar(this)), m_lostOffer(new MessageBar(this)),
      m_tree(new TreePane(m_document, m_icons, this)), m_preset(new PresetPane(m_document, this)),
      m_outcome(new OutcomePane(m_document, this)), m_findings(new FindingsPane(this)),
      m_splitter(new QSplitter(this)), m_findingsDock(new QDockWidget(tr("Findings"), this)),
      m_recentMedia(new RecentFiles(tr("Open Recent M&edia"), "recentMedia", m_settings, this)),
      m_files(new FileActions(m_document, m_settings, *m_messages, this)),
      m_presets(new PresetActions(m_document, m_files->Files(), *m_findings, *m_messages, this)),
      m_treeActions(new TreeActions(m_document, *m_tree, this))
{
    setObjectName("studio");
    setAcceptDrops(true);
    Lay();
    MakeMenus();
    Connect();
    RestoreState();
    m_recent.BringBack();
    ShowState();
    m_tree->View().setFocus();
}

// The panes look at the document, which goes first otherwise.
StudioWindow::~StudioWindow()
{
    delete m_treeActions;
    delete m_presets;
    delete m_files;
    delete takeCentralWidget();
    delete m_findingsDock;
}

void StudioWindow::Lay()
{
    m_splitter->setObjectName("panes");
    m_splitter->setChildrenCollapsible(false);
    for (QWidget* pane :
         {static_cast<QWidget*>(m_tree), static_cast<QWidget*>(m_preset), static_cast<QWidget*>(m_outcome)})
        m_splitter->addWidget(pane);
    m_splitter->setStretchFactor(0, 2);
    m_splitter->setStretchFactor(1, 4);
    m_splitter->setStretchFactor(2, 4);
    m_splitter->setSizes({260, 470, 550});
    auto* center = new QWidget(this);
    auto* layout = new QVBoxLayout(center);
    layout->setContentsMargins(6, 6, 6, 0);
    for (auto* line : {m_messages, m_lossMessage, m_lostOffer})
        layout->addWidget(line);
    m_lossMessage->setObjectName("lossMessage");
    m_lostOffer->setObjectName("lostOffer");
    layout->addWidget(m_splitter, 1);
    setCentralWidget(center);
    m_findingsDock->setObjectName("findingsDock");
    m_findingsDock->setWidget(m_findings);
    addDockWidget(Qt::BottomDockWidgetArea, m_findingsDock);
    m_findingsDock->hide();
    statusBar();
}

void StudioWindow::Connect()
{
    connect(m_tree, &TreePane::CurrentChanged, this, &StudioWindow::ShowItem);
    for (const auto telling : {&TreePane::Refused, &TreePane::Told})
        connect(m_tree, telling, this,
                [this](const QString& text) { statusBar()->showMessage(text, kMessageTime); });
    connect(&m_document, &StudioDocument::StateChanged, this, &StudioWindow::ShowState);
    m_recovery.SetNote([this] { return OwnBitrates::NoteOf(m_document); });
    connect(&m_recovery, &Recovery::FailureChanged, m_lossMessage,
            [this](const QString& failure) { TellOfLoss(failure); });
    connect(&m_files->Files(), &DocumentFiles::BusyChanged, this, &StudioWindow::SetBusy);
    connect(&m_files->Files(), &DocumentFiles::Saved, this,
            [this] { statusBar()->showMessage(tr("Saved"), kMessageTime); });
    connect(m_presets, &PresetActions::Found, this,
            [this]
            {
                m_findingsDock->show();
                m_findingsDock->raise();
            });
    connect(m_presets, &PresetActions::Imported, m_tree, &TreePane::Select);
    connect(m_findings, &FindingsPane::Chosen, this,
            [this](const TreeItem& item) { m_tree->Select({item}); });
    connect(m_outcome, &OutcomePane::SourceOpened, m_recentMedia, &RecentFiles::Add);
    connect(m_outcome, &OutcomePane::ConversionDone, this,
            [this](const auto& preset, const auto& asItWas)
            { m_files->Files().WhenFree([this, preset, asItWas] { m_recent.Note(*preset, *asItWas); }); });
    connect(&m_files->Files(), &DocumentFiles::Saved, &m_recent, &RecentUse::Forget);
    // When the line is no longer needed for what is being read.
    connect(
        &m_recent, &RecentUse::Failed, this,
        [this](const QString& reason)
        { statusBar()->showMessage(tr("Recently used presets: %1").arg(reason), kMessageTime); },
        Qt::QueuedConnection);
    connect(m_recentMedia, &RecentFiles::Chosen, m_outcome, &OutcomePane::OpenSource);
}

void StudioWindow::Start(const StartOptions& options)
{
    if (!options.screenshot.isEmpty())
        m_settings.Freeze();
    if (!options.theme.isEmpty())
        m_themes.Use(Themes::ThemeOf(options.theme));
    if (options.size.isValid())
        resize(options.size);
    const auto show = [this, options]
    {
        if (!options.search.isEmpty())
            m_tree->findChild<QLineEdit*>("search")->setText(options.search);
        if (!options.preset.isEmpty() && !m_tree->SelectByPath(options.preset))
            m_messages->Say(tr("There is no preset \"%1\".").arg(options.preset));
        if (options.checks)
            m_presets->Check();
    };
    if (options.document.isEmpty())
        show();
    else
        connect(&m_files->Files(), &DocumentFiles::Opened, this, show, Qt::SingleShotConnection);
    if (!options.document.isEmpty())
        m_files->Open(options.document);
    if (!options.source.isEmpty())
        m_outcome->OpenSource(options.source);
    if (options.screenshot.isEmpty())
        OfferLost();
}

void StudioWindow::ShowItem(const TreeItem& item)
{
    m_preset->ShowItem(item);
    m_outcome->ShowPreset(item.preset);
}

void StudioWindow::ShowState()
{
    setWindowTitle(tr("%1[*] - VXPresetStudio").arg(m_document.Title()));
    setWindowFilePath(m_document.Path());
    setWindowModified(m_document.IsModified());
}

// Nothing may be changed while a document is read or written.
void StudioWindow::SetBusy(bool isBusy)
{
    if (isBusy)
        m_focus = focusWidget();
    centralWidget()->setEnabled(!isBusy);
    menuBar()->setEnabled(!isBusy); // and its shortcuts with it
    if (!isBusy && m_focus)
        m_focus->setFocus();
    if (isBusy)
        statusBar()->showMessage(tr("Reading or writing the document…"));
    else
        statusBar()->clearMessage();
}

bool StudioWindow::IsAtRest() const
{
    return !m_files->Files().IsBusy() && !m_outcome->IsReading() &&
           QThreadPool::globalInstance()->activeThreadCount() == 0;
}

void StudioWindow::OfferLost()
{
    const auto lost = Recovery::FindLost();
    if (!lost)
        return;
    const auto name = lost->path.isEmpty() ? tr("the built-in presets") : QFileInfo(lost->path).fileName();
    m_lostOffer->Say(tr("The program ended unexpectedly. Changes of %1 were put by on %2.")
                         .arg(name, QLocale().toString(lost->saved, QLocale::ShortFormat)));
    m_lostOffer->Offer(tr("Discard"), [lost = *lost] { Recovery::Discard(lost); });
    m_lostOffer->Offer(tr("Restore"),
                       [this, lost = *lost]
                       {
                           m_files->WhenNothingIsLost(
                               [this, lost]
                               {
                                   const auto reason = m_recovery.Recover(lost);
                                   if (const auto& text = reason.isEmpty() ? lost.note : reason;
                                       !text.isEmpty())
                                       m_messages->Say(text);
                               });
                       });
}

// Each reason once, however often it stands in the way.
void StudioWindow::TellOfLoss(const QString& failure)
{
    if (failure.isEmpty())
        m_lossMessage->hide();
    else
        m_lossMessage->Say(
            tr("Changes that are not saved would be lost in a crash, for they cannot be put by: %1")
                .arg(failure));
}

void StudioWindow::OpenMedia(const QString& path) { m_outcome->OpenSource(path); }

void StudioWindow::closeEvent(QCloseEvent* event)
{
    if (!m_mayClose && (m_document.IsModified() || m_outcome->IsConverting()))
    {
        event->ignore();
        const bool isConverting = m_outcome->IsConverting();
        if (isConverting &&
            QMessageBox::question(this, tr("Conversion"),
                                  tr("A conversion is running. Stop it and close?")) != QMessageBox::Yes)
            return;
        m_files->WhenNothingIsLost(
            [this]
            {
                m_mayClose = true;
                QMetaObject::invokeMethod(this, "close", Qt::QueuedConnection);
            });
        return;
    }
    StoreState();
    event->accept();
}

void StudioWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

// Documents go to the tree, everything else is taken for media.
void StudioWindow::dropEvent(QDropEvent* event)
{
    const auto urls = event->mimeData()->urls();
    if (urls.isEmpty() || !urls.front().isLocalFile())
        return;
    const auto path = urls.front().toLocalFile();
    if (path.endsWith(".json", Qt::CaseInsensitive))
        m_files->Open(path);
    else if (path.endsWith(".gep", Qt::CaseInsensitive))
        m_presets->Import(path);
    else
        OpenMedia(path);
    event->acceptProposedAction();
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
