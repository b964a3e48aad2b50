#include "StudioWindow.h"

#include "BusyLine.h"
#include "FileActions.h"
#include "MessageBar.h"
#include "OwnBitrates.h"
#include "PresetActions.h"
#include "RecentFiles.h"
#include "TreeActions.h"
#include "apps/studio/findings/FindingsPane.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/preset/PresetPane.h"
#include "apps/studio/tree/TreePane.h"

#include "IVXFormatPreset.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace Vexlor::Studio
{

namespace
{

constexpr int kMessageTime = 6000; // milliseconds

} // namespace

StudioWindow::StudioWindow(QWidget* parent)
    : QMainWindow(parent), m_recovery(m_document), m_recent(m_document),
      m_themeChoices(new QActionGroup(this)), m_messages(new MessageBar(this)),
      m_lossMessage(new MessageBar(this)), m_lostOffer(new MessageBar(this)), m_busy(new BusyLine(this)),
      m_tree(new TreePane(m_document, m_icons, this)), m_preset(new PresetPane(m_document, this)),
      m_outcome(new OutcomePane(m_document, this)), m_findings(new FindingsPane(this)),
      m_splitter(new QSplitter(this)), m_findingsDock(new QDockWidget(tr("Findings"), this)),
      m_recentMedia(new RecentFiles(tr("Open Recent M&edia"), "recentMedia", m_settings, this)),
      m_files(new FileActions(m_document, m_settings, *m_messages, this)),
      m_presets(new PresetActions(m_document, m_files->Files(), *m_findings, *m_messages, *m_busy, this)),
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
    statusBar()->addPermanentWidget(m_busy);
}

void StudioWindow::Connect()
{
    connect(m_tree, &TreePane::CurrentChanged, this, &StudioWindow::ShowItem);
    for (const auto telling : {&TreePane::Refused, &TreePane::Told})
        connect(m_tree, telling, this, &StudioWindow::Tell);
    connect(&m_document, &StudioDocument::StateChanged, this, &StudioWindow::ShowState);
    m_recovery.SetNote([this] { return OwnBitrates::NoteOf(m_document); });
    connect(&m_recovery, &Recovery::Recovered, this,
            [this](const QString& note)
            {
                if (!note.isEmpty())
                    m_messages->Say(note);
            });
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
    connect(m_outcome, &OutcomePane::ConversionStarted, this, [this] { m_converted = m_recent.Here(); });
    connect(m_outcome, &OutcomePane::ConversionDone, this,
            [this](const auto& preset, const auto& asItWas)
            {
                m_files->Files().WhenFree([this, preset, asItWas, place = std::exchange(m_converted, {})]
                                          { m_recent.Note(place, *preset, *asItWas); });
            });
    connect(&m_files->Files(), &DocumentFiles::Saved, &m_recent, &RecentUse::Forget);
    // When the line is no longer needed for what is being read.
    connect(
        &m_recent, &RecentUse::Failed, this,
        [this](const QString& reason)
        { statusBar()->showMessage(tr("Recently used presets: %1").arg(reason), kMessageTime); },
        Qt::QueuedConnection);
    connect(m_outcome, &OutcomePane::Refused, this, &StudioWindow::Tell);
    connect(m_recentMedia, &RecentFiles::Chosen, m_outcome, &OutcomePane::OpenSource);
}

void StudioWindow::Tell(const QString& text) { statusBar()->showMessage(text, kMessageTime); }

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

} // namespace Vexlor::Studio
