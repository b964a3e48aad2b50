#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QPushButton;
class QVBoxLayout;

namespace Vexlor::Studio
{

/// The ways out of a warning, a button each; not there while there are none.
class RemedyButtons final : public QWidget
{
    Q_OBJECT

public:
    explicit RemedyButtons(QWidget* parent = nullptr);

    /// Offers those, in sentences without a capital letter.
    void Offer(const QStringList& remedies);

signals:
    /// The one of that number was chosen.
    void Chosen(int number);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void AddButton(int number);
    void Cut();

    QStringList m_remedies;
    std::vector<QPushButton*> m_buttons;
    QVBoxLayout* m_layout;
};

} // namespace Vexlor::Studio
