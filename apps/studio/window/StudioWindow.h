#pragma once

#include "Themes.h"
#include "UserSettings.h"
#include "apps/studio/document/RecentUse.h"
#include "apps/studio/document/Recovery.h"
#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/tree/FaceIcons.h"

#include <QMainWindow>
#include <QPointer>
#include <QStringList>

class QActionGroup;
class QDockWidget;
class QSplitter;

namespace Vexlor::Studio
{

class BusyLine;
class FileActions;
class FindingsPane;
class MessageBar;
class OutcomePane;
class PresetActions;
class PresetPane;
class RecentFiles;
class TreeActions;
class TreePane;
struct StartOptions;

/// The window: the tree, the preset that is picked in it, and what a source becomes with that.
class StudioWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit StudioWindow(QWidget* parent = nullptr);
    ~StudioWindow() override;

    /// Does what the program was started with.
    void Start(const StartOptions& options);

    StudioDocument& Document() { return m_document; }
    Recovery& Lost() { return m_recovery; }
    FileActions& Files() { return *m_files; }
    PresetActions& Presets() { return *m_presets; }
    TreePane& Tree() { return *m_tree; }
    OutcomePane& Outcome() { return *m_outcome; }

    /// True when nothing is being read, written or worked out.
    bool IsAtRest() const;
    /// Why it does not show what it was started with; nothing where it does.
    const QStringList& Unshown() const { return m_unshown; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void Lay();
    void MakeMenus();
    void MakeFileMenu();
    void MakeEditMenu();
    void MakePresetMenu();
    void MakeViewMenu();
    void MakeThemeMenu(QMenu& view);
    void MakeHelpMenu();
    void AddFocusAction(QMenu& menu, const QString& text, const QKeySequence& shortcut, QWidget* pane);
    void Connect();
    void ShowItem(const TreeItem& item);
    void ShowState();
    void Tell(const QString& text);
    void SetBusy(bool isBusy);
    void UseTheme(Theme theme);
    void OfferLost();
    void Restore(const LostDocument& lost);
    void TellOfLoss(const QString& failure);
    bool MayLeaveFile();
    bool MayStopConversion();
    void RestoreState();
    void StoreState() const;
    void ShowAbout();

    UserSettings m_settings;
    StudioDocument m_document;
    Recovery m_recovery;
    RecentUse m_recent;
    RecentUse::Place m_converted; // what the last conversion began in
    FaceIcons m_icons;
    Themes m_themes;
    QActionGroup* m_themeChoices;
    MessageBar* m_messages;
    MessageBar* m_lossMessage;
    MessageBar* m_lostOffer;
    BusyLine* m_busy;
    TreePane* m_tree;
    PresetPane* m_preset;
    OutcomePane* m_outcome;
    FindingsPane* m_findings;
    QSplitter* m_splitter;
    QDockWidget* m_findingsDock;
    RecentFiles* m_recentMedia;
    FileActions* m_files;
    PresetActions* m_presets;
    TreeActions* m_treeActions;
    QPointer<QWidget> m_focus; // where the keyboard was before the panes were locked
    QStringList m_unshown;
    bool m_mayClose = false;
};

} // namespace Vexlor::Studio
