#pragma once

#include "ConversionJob.h"

#include <QStringList>
#include <QWidget>

#include <initializer_list>

class QLabel;
class QProgressBar;
class QPushButton;

namespace Vexlor::Studio
{

/// What is to be said of a conversion: a question before it, how far it is, and what came of it.
class ConversionStatus final : public QWidget
{
    Q_OBJECT

public:
    explicit ConversionStatus(QWidget* parent = nullptr);

    /// Says nothing.
    void Clear();
    /// Asks whether the file of that path, which is there, is to be replaced.
    void AskToReplace(const QString& path);
    /// Says that the file of that path is being made.
    void ShowStart(const QString& path);
    /// Says how far it is.
    void ShowProgress(const Tool::ConversionProgress& progress);
    /// Says that what was begun is being ended.
    void ShowCancelling();
    /// Says what became of it, and what gave way in it.
    void ShowEnd(const ConversionEnd& end, const QStringList& changes);
    /// Says why it could not begin.
    void ShowError(const QString& error);

signals:
    /// The file that is there is to be replaced.
    void ReplaceWanted();
    /// Another file is to be chosen.
    void AnotherWanted();
    /// What is being made is to be given up.
    void CancelWanted();

private:
    QPushButton* AddButton(const QString& text, const char* name);
    void Say(const QString& text, const QString& details, std::initializer_list<QWidget*> shown);
    void ShowFolder() const;

    QLabel* m_text;
    QProgressBar* m_bar;
    QLabel* m_details;
    QPushButton* m_replace;
    QPushButton* m_another;
    QPushButton* m_dismiss;
    QPushButton* m_cancel;
    QPushButton* m_folder;
    QString m_path;
};

} // namespace Vexlor::Studio
