#include "RemedyButtons.h"

#include "apps/studio/ShownText.h"

#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QVBoxLayout>

#include <utility>

namespace Vexlor::Studio
{

namespace
{

QString Capitalised(const QString& text) { return text.left(1).toUpper() + text.mid(1); }

/// The width that a button has for its text.
int RoomOf(const QPushButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    return button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button).width();
}

} // namespace

RemedyButtons::RemedyButtons(QWidget* parent) : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("remedies"));
    m_layout->setContentsMargins({});
    m_layout->addWidget(new QLabel(tr("Ways out:"), this));
    hide();
}

void RemedyButtons::Offer(const QStringList& remedies)
{
    if (remedies == m_remedies)
        return;
    m_remedies = remedies;
    for (auto* button : std::exchange(m_buttons, {}))
    {
        m_layout->removeWidget(button);
        button->hide();
        button->deleteLater(); // it may be the one that is being pressed
    }
    for (int number = 0; number < remedies.size(); ++number)
        AddButton(number);
    Cut();
    setVisible(!remedies.isEmpty());
}

void RemedyButtons::AddButton(int number)
{
    const auto text = Capitalised(m_remedies[number]);
    auto* button = new QPushButton(this);
    button->setObjectName(QStringLiteral("remedy%1").arg(number));
    button->setAccessibleName(text);
    button->setToolTip(AsPlainText(tr("%1. This changes the preset, and can be undone.").arg(text)));
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(button, &QPushButton::clicked, this, [this, number] { emit Chosen(number); });
    m_layout->addWidget(button);
    m_buttons.push_back(button);
}

void RemedyButtons::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Cut();
}

// The whole of it is in the tool tip.
void RemedyButtons::Cut()
{
    m_layout->activate();
    for (auto* button : m_buttons)
        button->setText(
            button->fontMetrics().elidedText(button->accessibleName(), Qt::ElideRight, RoomOf(*button)));
}

} // namespace Vexlor::Studio
