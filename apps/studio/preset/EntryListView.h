#pragma once

#include <QListWidget>

namespace Vexlor::Studio
{

/// Entries as rows, the current one marked as one of several buttons would be.
///
/// Space or Return makes the row's entry the current one, Delete removes it, Alt with an arrow moves it. The
/// view asks for changes and shows what it is filled with.
class EntryListView final : public QListWidget
{
    Q_OBJECT

public:
    explicit EntryListView(QWidget* parent = nullptr);

    /// Shows these entries; a row that was selected stays so as far as there is one of its number.
    void Fill(const QStringList& texts, int current);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void ChooseAsked(int row);
    void RemoveAsked(int row);
    /// By -1 or 1.
    void MoveAsked(int row, int by);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void AskToChoose(const QListWidgetItem* item);
    void Mark();
    int HeightOf(int rows) const;

    int m_chosen = -1;
};

} // namespace Vexlor::Studio
