#pragma once

#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QPushButton;

namespace Vexlor::Studio
{

/// Tells what takes its time beside the window's thread, and lets the user give it up. What is done soon is
/// not told.
class BusyLine : public QWidget
{
    Q_OBJECT

public:
    /// What can be done at the same time.
    enum class Work
    {
        Check,
        Import,
        Document, ///< reading or writing it, which keeps the user from everything else
    };

    explicit BusyLine(QWidget* parent = nullptr);

    /// Tells of work that has begun, in place of what was told of that kind; cancel gives it up, nothing
    /// where it cannot be.
    void Begin(Work work, const QString& text, std::function<void()> cancel);
    /// That kind of work has ended.
    void End(Work work);

private:
    struct Told
    {
        Work work;
        QString text;
        std::function<void()> cancel;
    };

    void Show();
    void Cancel();

    QLabel* m_text;
    QPushButton* m_cancel;
    QTimer m_delay;
    std::vector<Told> m_told; // the last is shown
};

} // namespace Vexlor::Studio
