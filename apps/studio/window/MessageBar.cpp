#include "MessageBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace Vexlor::Studio
{

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent), m_layout(new QHBoxLayout(this)), m_text(new QLabel(this))
{
    setObjectName("messageBar");
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setFrameShape(QFrame::StyledPanel);
    m_text->setObjectName("message");
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_layout->setContentsMargins(9, 5, 9, 5);
    m_layout->addWidget(m_text, 1);
    hide();
}

void MessageBar::Say(const QString& text)
{
    for (auto* button : std::as_const(m_buttons))
    {
        m_layout->removeWidget(button);
        button->hide();
        button->deleteLater(); // it may be the one that is being pressed
    }
    m_buttons.clear();
    m_text->setText(text);
    Offer(tr("Close"), [] {});
    show();
    QAccessibleEvent event(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void MessageBar::TakeBack(const QString& text)
{
    if (m_text->text() == text)
        hide();
}

void MessageBar::Offer(const QString& label, const std::function<void()>& action)
{
    auto* button = new QPushButton(label, this);
    m_layout->insertWidget(m_layout->count() - (m_buttons.empty() ? 0 : 1), button);
    m_buttons.append(button);
    connect(button, &QPushButton::clicked, this,
            [this, action]
            {
                hide();
                action();
            });
}

} // namespace Vexlor::Studio
