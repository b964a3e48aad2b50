#include "EntryListBox.h"

#include "EntryListView.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace Vexlor::Studio
{

EntryListBox::EntryListBox(QWidget* parent)
    : QWidget(parent), m_list(new EntryListView(this)), m_buttons(new QHBoxLayout)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    layout->addLayout(m_buttons);
    setFocusProxy(m_list);

    m_remove = &NewButton("remove", tr("Remove (Delete)"));
    m_remove->setText(QStringLiteral("\u2212"));
    m_up = &NewButton("up", tr("Move up (Alt+Up)"));
    m_up->setArrowType(Qt::UpArrow);
    m_down = &NewButton("down", tr("Move down (Alt+Down)"));
    m_down->setArrowType(Qt::DownArrow);
    m_buttons->addStretch();

    connect(m_remove, &QToolButton::clicked, this,
            [this] { emit m_list->RemoveAsked(m_list->currentRow()); });
    connect(m_up, &QToolButton::clicked, this, [this] { emit m_list->MoveAsked(m_list->currentRow(), -1); });
    connect(m_down, &QToolButton::clicked, this, [this] { emit m_list->MoveAsked(m_list->currentRow(), 1); });
    connect(m_list, &QListWidget::currentRowChanged, this, &EntryListBox::Arm);
    Arm();
}

void EntryListBox::SetNoun(const QString& noun)
{
    m_list->setAccessibleName(tr("Entries of %1").arg(noun));
    m_remove->setAccessibleName(tr("Remove %1").arg(noun));
    m_up->setAccessibleName(tr("Move %1 up").arg(noun));
    m_down->setAccessibleName(tr("Move %1 down").arg(noun));
}

void EntryListBox::Fill(const QStringList& texts, int current)
{
    m_list->Fill(texts, current);
    Arm();
}

void EntryListBox::Select(int row)
{
    const QSignalBlocker blocker(m_list);
    m_list->setCurrentRow(row);
    Arm();
}

void EntryListBox::AddButton(QWidget& button, bool isFirst)
{
    m_buttons->insertWidget(isFirst ? 0 : -1, &button);
    if (!isFirst)
        return;
    setTabOrder(m_list, &button);
    setTabOrder(&button, m_remove);
}

QToolButton& EntryListBox::NewButton(const char* name, const QString& tip)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(tip);
    button->setFocusPolicy(Qt::StrongFocus);
    m_buttons->addWidget(button);
    return *button;
}

void EntryListBox::Arm()
{
    const int row = m_list->currentRow();
    m_remove->setEnabled(row >= 0);
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row + 1 < m_list->count());
}

} // namespace Vexlor::Studio
