#include "ConversionStatus.h"

#include "ConversionTexts.h"
#include "apps/studio/ShownText.h"
#include "apps/studio/texts/ToolText.h"

#include <QAccessible>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QUrl>

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

constexpr int kSteps = 1000;

QString NameOf(const QString& path) { return QFileInfo(path).fileName(); }

QLabel* NewLabel(QWidget* parent, const char* name)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

QString DetailsOf(const Tool::ConversionResult& result, const QStringList& changes)
{
    auto lines = changes;
    for (const auto& message : result.messages)
        lines << QStringLiteral("ffmpeg: ") + ShownText(message);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

ConversionStatus::ConversionStatus(QWidget* parent)
    : QWidget(parent), m_text(NewLabel(this, "conversionText")), m_bar(new QProgressBar(this)),
      m_details(NewLabel(this, "conversionDetails")), m_replace(AddButton(tr("Replace"), "replaceOutput")),
      m_another(AddButton(tr("Another Name…"), "anotherOutput")),
      m_dismiss(AddButton(tr("Not Now"), "dismissQuestion")),
      m_cancel(AddButton(tr("Cancel"), "cancelConversion")),
      m_folder(AddButton(tr("Show in Folder"), "showInFolder"))
{
    m_bar->setObjectName(QStringLiteral("conversionProgress"));
    m_bar->setAccessibleName(tr("Progress of the conversion"));
    m_bar->setTextVisible(false);
    connect(m_replace, &QPushButton::clicked, this, &ConversionStatus::ReplaceWanted);
    connect(m_another, &QPushButton::clicked, this, &ConversionStatus::AnotherWanted);
    connect(m_dismiss, &QPushButton::clicked, this, &ConversionStatus::Clear);
    connect(m_cancel, &QPushButton::clicked, this, &ConversionStatus::CancelWanted);
    connect(m_folder, &QPushButton::clicked, this, &ConversionStatus::ShowFolder);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (auto* button : {m_replace, m_another, m_dismiss, m_folder})
        buttons->addWidget(button);
    auto* progress = new QHBoxLayout;
    progress->addWidget(m_bar, 1);
    progress->addWidget(m_cancel);
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins({});
    lines->addWidget(m_text);
    lines->addLayout(progress);
    lines->addWidget(m_details);
    lines->addLayout(buttons);
    Clear();
}

QPushButton* ConversionStatus::AddButton(const QString& text, const char* name)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    return button;
}

void ConversionStatus::Say(const QString& text, const QString& details, std::initializer_list<QWidget*> shown)
{
    m_text->setText(text);
    m_details->setText(details);
    m_details->setVisible(!details.isEmpty());
    for (QWidget* part :
         std::initializer_list<QWidget*>{m_bar, m_replace, m_another, m_dismiss, m_cancel, m_folder})
        part->setVisible(std::ranges::find(shown, part) != shown.end());
    setVisible(!text.isEmpty());
    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void ConversionStatus::Clear() { Say({}, {}, {}); }

void ConversionStatus::AskToReplace(const QString& path)
{
    Say(tr("%1 is there already.").arg(NameOf(path)), {}, {m_replace, m_another, m_dismiss});
    m_another->setFocus(); // the answer that destroys nothing
}

void ConversionStatus::ShowStart(const QString& path)
{
    m_path = path;
    m_bar->setRange(0, kSteps);
    m_bar->setValue(0);
    m_cancel->setEnabled(true);
    Say(tr("Making %1").arg(NameOf(path)), tr("Starting …"), {m_bar, m_cancel});
    m_cancel->setFocus();
}

void ConversionStatus::ShowProgress(const Tool::ConversionProgress& progress)
{
    const bool isKnown = progress.duration > 0;
    m_bar->setRange(0, isKnown ? kSteps : 0);
    m_bar->setValue(static_cast<int>(progress.Share() * kSteps));
    m_details->setText(ConversionTexts::Progress(progress));
}

void ConversionStatus::ShowCancelling()
{
    m_cancel->setEnabled(false);
    m_details->setText(tr("Cancelling …"));
}

void ConversionStatus::ShowEnd(const ConversionEnd& end, const QStringList& changes)
{
    switch (end.kind)
    {
    case ConversionEnd::Kind::Done:
        Say(tr("%1 is made: %2 in %3")
                .arg(NameOf(m_path), ToolText(Tool::SizeOfBytes(double(end.result.bytes))),
                     ConversionTexts::Duration(end.result.seconds)),
            DetailsOf(end.result, changes), {m_folder});
        return m_folder->setFocus();
    case ConversionEnd::Kind::Cancelled:
        return Say(tr("Cancelled: nothing is left of %1").arg(NameOf(m_path)), {}, {});
    default:
        return ShowError(ToolText(end.error));
    }
}

void ConversionStatus::ShowError(const QString& error) { Say(tr("It could not be converted."), error, {}); }

void ConversionStatus::ShowFolder() const
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(m_path).absolutePath()));
}

} // namespace Vexlor::Studio
