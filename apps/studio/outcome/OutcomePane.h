#pragma once

#include "OutputHabits.h"
#include "RemedyEdits.h"
#include "SourceLoader.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

class QLabel;
class QScrollArea;
class QStackedWidget;

namespace Vexlor
{
class IVXFormatPreset;
}

namespace Vexlor::Studio
{

class ConvertPanel;
class OutcomeDrawings;
class OutcomeModel;
class OutcomeView;
class RemedyButtons;
class SourceBar;
class StudioDocument;

/// A source, and what becomes of it in the preset that is shown: value by value with the reasons, drawn,
/// warned of, and made.
///
/// It follows every change of the preset in the document.
class OutcomePane final : public QWidget
{
    Q_OBJECT

public:
    /// The document must outlive the pane.
    explicit OutcomePane(StudioDocument& document, QWidget* parent = nullptr);
    /// Cancels a conversion that runs, and waits for it.
    ~OutcomePane() override;

    /// Shows what becomes of the source in that preset; an empty handle shows the source alone.
    void ShowPreset(std::shared_ptr<IVXFormatPreset> preset);
    /// Reads that file beside the user's thread and shows it. One that cannot be read is told of in the pane,
    /// and what was shown stays.
    void OpenSource(const QString& path);
    /// Asks for a file in a dialog, and opens it.
    void AskForSource();
    /// Asks for an output's file in a dialog, and converts into it; where that cannot be done it tells why.
    void AskToConvert();
    /// Converts into the file of that path; one that is there is replaced when the user says so.
    void ConvertTo(const QString& path);
    /// True while a source is read or what becomes of it is to be worked out anew.
    bool IsReading() const { return m_loader.IsLoading() || m_update.isActive(); }
    /// What is kept of the user's habits for the next session.
    OutputHabits Habits() const;
    void SetHabits(const OutputHabits& habits);
    /// True while it converts, which ends with the pane.
    bool IsConverting() const;

signals:
    /// A file was read and is shown.
    void SourceOpened(const QString& path);
    /// Nothing can be converted; why.
    void Refused(const QString& reason);
    /// A file could not be read; why.
    void SourceFailed(const QString& reason);
    /// A conversion has begun.
    void ConversionStarted();
    /// A conversion with that preset, as it was when it began, went well.
    void ConversionDone(const std::shared_ptr<Vexlor::IVXFormatPreset>& preset,
                        const std::shared_ptr<Vexlor::IVXFormatPreset>& asItWas);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Lay();
    void Connect();
    QWidget* NewContent();
    void TakeSource(const QString& path, const VXMediaFile& media);
    void UpdateSoon();
    void Update();
    void UpdateEmpty();
    void UpdateNotices(const Outcome* outcome);
    void SetDropping(bool isDropping);

    StudioDocument& m_document;
    std::shared_ptr<IVXFormatPreset> m_preset;
    QString m_path;
    std::optional<VXMediaFile> m_media;
    bool m_isDropping = false;
    std::vector<RemedyEdit> m_edits; ///< which the buttons are of

    SourceBar* m_source;
    QStackedWidget* m_pages;
    QLabel* m_empty;
    QScrollArea* m_scroll;
    OutcomeDrawings* m_drawings;
    QLabel* m_notices;
    RemedyButtons* m_remedies;
    OutcomeModel* m_model;
    OutcomeView* m_view;
    ConvertPanel* m_convert;
    SourceLoader m_loader;
    QTimer m_update;
};

} // namespace Vexlor::Studio
