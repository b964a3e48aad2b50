#include "StudioWindow.h"

#include "FileActions.h"
#include "MessageBar.h"
#include "PresetActions.h"
#include "StartOptions.h"
#include "apps/studio/DroppedFile.h"
#include "apps/studio/ShownText.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/tree/TreePane.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QLocale>
#include <QMimeData>

namespace Vexlor::Studio
{

void StudioWindow::Start(const StartOptions& options)
{
    if (!options.screenshot.isEmpty())
        m_settings.Freeze();
    if (!options.theme.isEmpty())
        m_themes.Use(Themes::ThemeOf(options.theme));
    if (options.size.isValid())
        resize(options.size);
    const auto note = [this](const QString& reason) { m_unshown << reason; };
    connect(&m_files->Files(), &DocumentFiles::Failed, this, note);
    connect(m_outcome, &OutcomePane::SourceFailed, this, note);
    const auto show = [this, options, note]
    {
        if (!options.search.isEmpty())
            m_tree->findChild<QLineEdit*>("search")->setText(options.search);
        if (!options.preset.isEmpty() && !m_tree->SelectByPath(options.preset))
        {
            note(tr("There is no preset \"%1\".").arg(options.preset));
            m_messages->Say(m_unshown.back());
        }
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

void StudioWindow::OfferLost()
{
    const auto lost = Recovery::FindLost();
    if (!lost)
        return;
    const auto name = lost->path.isEmpty() ? tr("the built-in presets") : QFileInfo(lost->path).fileName();
    m_lostOffer->Say(tr("The program ended unexpectedly. Changes of %1 were put by on %2.")
                         .arg(name, QLocale().toString(lost->saved, QLocale::ShortFormat)));
    m_lostOffer->Offer(tr("Discard"),
                       [this, lost = *lost]
                       {
                           Recovery::Discard(lost);
                           OfferLost();
                       });
    m_lostOffer->Offer(tr("Restore"), [this, lost = *lost] { Restore(lost); });
}

// What is not restored after all is offered again, and what else there is.
void StudioWindow::Restore(const LostDocument& lost)
{
    m_files->WhenNothingIsLost([this, lost] { m_recovery.Recover(lost, m_files->Files()); });
    m_files->Files().WhenFree([this] { OfferLost(); });
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
    const auto kind = KindOfDropped(path);
    if (kind != DroppedFile::Media && m_files->Files().IsBusy())
        return Tell(tr("\"%1\" was not opened: another document is being read or written.")
                        .arg(ShownText(QFileInfo(path).fileName().toStdString())));
    event->acceptProposedAction();
    if (kind == DroppedFile::Document)
        m_files->Open(path);
    else if (kind == DroppedFile::EncodingTarget)
        m_presets->Import(path);
    else
        m_outcome->OpenSource(path);
}

} // namespace Vexlor::Studio
