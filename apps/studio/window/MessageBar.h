#pragma once

#include <QFrame>

#include <functional>

class QHBoxLayout;
class QLabel;

namespace Vexlor::Studio
{

/// A line above everything that tells or asks something and waits until it suits the user.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent = nullptr);

    /// Shows a text in place of what was shown. Any button hides it.
    void Say(const QString& text);
    /// Hides that text, where it is shown still.
    void TakeBack(const QString& text);
    /// Adds a button to the text that is shown.
    void Offer(const QString& label, const std::function<void()>& action);

private:
    QHBoxLayout* m_layout;
    QLabel* m_text;
    QList<QWidget*> m_buttons;
};

} // namespace Vexlor::Studio
