#pragma once

#include <QLabel>

namespace Vexlor::Studio
{

/// A line below a field that says what is wrong with it or to be known of it; not there while it says
/// nothing.
class MessageLine final : public QLabel
{
    Q_OBJECT

public:
    explicit MessageLine(QWidget* parent = nullptr);

    /// Shows that text, and has it read out.
    void Say(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void KeepHeight();
};

} // namespace Vexlor::Studio
