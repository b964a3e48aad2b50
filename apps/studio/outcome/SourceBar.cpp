#include "SourceBar.h"

#include "ElidedLabel.h"
#include "apps/studio/ShownText.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>

namespace Vexlor::Studio
{

SourceBar::SourceBar(QWidget* parent)
    : QWidget(parent), m_name(new ElidedLabel(this)), m_state(new QLabel(this)),
      m_cancel(new QPushButton(tr("Cancel"), this))
{
    auto* open = new QPushButton(tr("Open &Media…"), this);
    open->setObjectName(QStringLiteral("openSource"));
    open->setToolTip(tr("Opens a video or sound file; it can also be dropped here"));
    connect(open, &QPushButton::clicked, this, &SourceBar::AskForFile);

    auto strong = font();
    strong.setBold(true);
    m_name->setObjectName(QStringLiteral("sourceName"));
    m_name->setFont(strong);
    m_state->setObjectName(QStringLiteral("sourceState"));
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    m_state->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    auto* line = new QHBoxLayout;
    line->addWidget(m_name, 1);
    line->addWidget(open);
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins({});
    lines->addLayout(line);
    lines->addLayout(NewStateLine());
    ShowSource({});
    Say({});
}

QLayout* SourceBar::NewStateLine()
{
    m_cancel->setObjectName(QStringLiteral("cancelSource"));
    m_cancel->setAccessibleName(tr("Cancel reading"));
    connect(m_cancel, &QPushButton::clicked, this, &SourceBar::CancelWanted);
    auto* line = new QHBoxLayout;
    line->addWidget(m_state, 1);
    line->addWidget(m_cancel);
    return line;
}

void SourceBar::ShowSource(const QString& path)
{
    m_path = path;
    m_name->SetWholeText(path.isEmpty() ? tr("No source")
                                        : ShownText(QFileInfo(path).fileName().toStdString()));
    if (!path.isEmpty())
        m_name->setToolTip(AsPlainText(path));
}

void SourceBar::Say(const QString& text)
{
    m_state->setText(text);
    m_state->setVisible(!text.isEmpty());
    m_cancel->hide();
}

void SourceBar::ShowReading(const QString& path)
{
    Say(path.isEmpty() ? QString() : tr("Reading %1 …").arg(QFileInfo(path).fileName()));
    m_cancel->setVisible(!path.isEmpty());
}

void SourceBar::ShowError(const QString& error) { Say(error); }

void SourceBar::AskForFile()
{
    auto* dialog = new QFileDialog(this, tr("Open Media"), QFileInfo(m_path).absolutePath());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &SourceBar::Chosen);
    dialog->open();
}

} // namespace Vexlor::Studio
