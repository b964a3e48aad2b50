#include "ConvertPanel.h"

#include "ConversionStatus.h"
#include "ConversionTexts.h"
#include "OutputName.h"
#include "apps/host/Failure.h"
#include "apps/studio/ShownText.h"
#include "apps/studio/texts/ToolText.h"

#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

bool HasPicture(const Outcome* outcome) { return outcome && outcome->match.output->GetVideoCodecParameter(); }

QStringList LinesOf(const std::vector<std::string>& texts)
{
    QStringList lines;
    for (const auto& text : texts)
        lines << ToolText(text);
    return lines;
}

} // namespace

ConvertPanel::ConvertPanel(QWidget* parent)
    : QWidget(parent), m_fitLabel(new QLabel(tr("Pic&ture:"), this)), m_fit(new QComboBox(this)),
      m_size(new QLabel(this)), m_convert(new QPushButton(tr("&Convert…"), this)),
      m_status(new ConversionStatus(this))
{
    m_fit->setObjectName(QStringLiteral("pictureFit"));
    m_fit->setAccessibleName(tr("How the picture fits into a frame of another shape"));
    m_fit->addItem(tr("Pad with black"), int(Tool::PictureFitting::Pad));
    m_fit->addItem(tr("Crop"), int(Tool::PictureFitting::Crop));
    m_fit->addItem(tr("Stretch"), int(Tool::PictureFitting::Stretch));
    m_fit->setToolTip(m_fit->accessibleName());
    m_fitLabel->setBuddy(m_fit);
    m_size->setObjectName(QStringLiteral("predictedSize"));
    m_size->setTextFormat(Qt::PlainText);
    m_size->setWordWrap(true);
    m_size->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_convert->setObjectName(QStringLiteral("convert"));
    Lay();
    connect(m_fit, &QComboBox::currentIndexChanged, this, &ConvertPanel::FittingChanged);
    connect(m_convert, &QPushButton::clicked, this, &ConvertPanel::AskForOutput);
    ConnectStatus();
    Offer({});
}

void ConvertPanel::Lay()
{
    auto* line = new QHBoxLayout;
    line->addWidget(m_fitLabel);
    line->addWidget(m_fit);
    line->addStretch(1);
    line->addWidget(m_convert);
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins({});
    lines->addWidget(m_size);
    lines->addLayout(line);
    lines->addWidget(m_status);
    setTabOrder(m_size, m_fit);
    setTabOrder(m_fit, m_convert);
}

void ConvertPanel::ConnectStatus()
{
    connect(m_status, &ConversionStatus::ReplaceWanted, this,
            [this] { Start(std::exchange(m_wanted, {}), true); });
    connect(m_status, &ConversionStatus::AnotherWanted, this, &ConvertPanel::AskForOutput);
    connect(m_status, &ConversionStatus::CancelWanted, this, &ConvertPanel::Cancel);
    connect(&m_job, &ConversionJob::Progressed, this,
            [this](const Tool::ConversionProgress& progress)
            {
                if (!m_job.IsCancelled())
                    m_status->ShowProgress(progress);
            });
    connect(&m_job, &ConversionJob::Ended, this, &ConvertPanel::End);
}

void ConvertPanel::Offer(const ConversionOffer& offer)
{
    const bool isAskedForAnother = offer.preset != m_offer.preset && !m_wanted.isEmpty();
    if ((offer.source != m_offer.source || isAskedForAnother) && !IsConverting())
    {
        m_wanted.clear();
        m_status->Clear();
    }
    m_offer = offer;
    const bool hasPicture = HasPicture(offer.outcome.get());
    m_fitLabel->setVisible(hasPicture);
    m_fit->setVisible(hasPicture);
    UpdateButton();
}

Tool::PictureFitting ConvertPanel::Fitting() const
{
    return static_cast<Tool::PictureFitting>(m_fit->currentData().toInt());
}

OutputHabits ConvertPanel::Habits() const { return {static_cast<int>(Fitting()), m_folder}; }

void ConvertPanel::SetHabits(const OutputHabits& habits)
{
    m_fit->setCurrentIndex(std::max(0, m_fit->findData(habits.fitting)));
    m_folder = habits.folder;
}

/// Why the button is disabled; empty where it is not.
QString ConvertPanel::Reason() const
{
    if (!m_offer.outcome)
        return m_offer.source.isEmpty() ? tr("There is no source to convert.")
                                        : tr("Choose a preset to see what becomes of this file.");
    if (!m_offer.outcome->obstacle.empty())
        return tr("Cannot be converted here: %1").arg(ToolText(m_offer.outcome->obstacle));
    return {};
}

void ConvertPanel::UpdateButton()
{
    const auto reason = Reason();
    m_convert->setEnabled(reason.isEmpty() && !IsConverting());
    m_convert->setToolTip(AsPlainText(reason));
    m_size->setText(reason.isEmpty() ? SizeText() : reason);
}

QString ConvertPanel::SizeText() const
{
    if (!m_offer.outcome->size)
        return tr("The size cannot be predicted: the source does not tell its length.");
    const auto size = m_offer.outcome->size->Total();
    return tr("Predicted size: %1 (%2)")
        .arg(ConversionTexts::LikelySize(size), ConversionTexts::SizeSpan(size));
}

void ConvertPanel::AskForOutput()
{
    if (!m_convert->isEnabled())
        return emit Refused(IsConverting() ? tr("A conversion is running already.") : Reason());
    const auto container = ShownText(m_offer.outcome->match.output->FormatName());
    const auto ending = EndingOf(container);
    const QFileInfo suggestion(FreeOutputName(m_offer.source, ending, m_folder));
    auto* dialog = new QFileDialog(this, tr("Convert To"), suggestion.absolutePath(),
                                   tr("%1 files (*.%2);;All files (*)").arg(container, ending));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setOption(
        QFileDialog::DontConfirmOverwrite); // the pane asks, whatever the dialog makes of an ending
    dialog->setDefaultSuffix(ending);
    dialog->selectFile(suggestion.fileName());
    connect(dialog, &QFileDialog::fileSelected, this, &ConvertPanel::ConvertTo);
    dialog->open();
}

void ConvertPanel::ConvertTo(const QString& path)
{
    if (!m_convert->isEnabled())
        return;
    const bool isThere = QFileInfo::exists(path) && QFileInfo(path) != QFileInfo(m_offer.source);
    m_wanted = isThere ? path : QString();
    if (isThere)
        return m_status->AskToReplace(path);
    Start(path, false);
}

void ConvertPanel::Start(const QString& path, bool overwrites)
{
    if (!m_convert->isEnabled())
        return;
    m_running = m_offer;
    m_asItWas = m_running.preset->Clone(); // it may be edited meanwhile
    m_folder = QFileInfo(path).absolutePath();
    const auto& match = m_running.outcome->match;
    const auto source = m_running.source.toStdString();
    const auto output = path.toStdString();
    try
    {
        const auto command = Tool::FfmpegCommandFor(match, source, output, Fitting());
        m_changes = LinesOf(command.changes);
        m_job.Start(command, {source, output, overwrites, match.media.duration});
    }
    catch (const Tool::Failure& failure)
    {
        return m_status->ShowError(ToolText(failure.what()));
    }
    UpdateButton();
    m_status->ShowStart(path);
    emit ConversionStarted();
}

void ConvertPanel::Cancel()
{
    m_job.Cancel();
    m_status->ShowCancelling();
}

void ConvertPanel::End(const ConversionEnd& end)
{
    m_status->ShowEnd(end, m_changes);
    UpdateButton();
    if (end.kind != ConversionEnd::Kind::Done)
        m_convert->setFocus();
    else
        emit ConversionDone(m_running.preset, m_asItWas);
    m_running = {};
    m_asItWas.reset();
}

} // namespace Vexlor::Studio
