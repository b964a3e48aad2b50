#pragma once

#include <QWidget>

class QLabel;
class QLayout;
class QPushButton;

namespace Vexlor::Studio
{

class ElidedLabel;

/// Names the source, says what is being read or could not be, and has a button that opens another.
class SourceBar final : public QWidget
{
    Q_OBJECT

public:
    explicit SourceBar(QWidget* parent = nullptr);

    /// Names the source that is shown; an empty path is none.
    void ShowSource(const QString& path);
    /// Says what is being read, and offers to give that up; an empty path is nothing.
    void ShowReading(const QString& path);
    /// Says why a file could not be read; as above.
    void ShowError(const QString& error);

    /// Asks for a file in a dialog that does not hold up the program.
    void AskForFile();

signals:
    /// A file was chosen.
    void Chosen(const QString& path);
    /// What is being read is not to be waited for.
    void CancelWanted();

private:
    QLayout* NewStateLine();
    void Say(const QString& text);

    ElidedLabel* m_name;
    QLabel* m_state;
    QPushButton* m_cancel;
    QString m_path;
};

} // namespace Vexlor::Studio
