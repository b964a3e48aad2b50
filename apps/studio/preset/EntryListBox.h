#pragma once

#include <QWidget>

class QHBoxLayout;
class QToolButton;

namespace Vexlor::Studio
{

class EntryListView;

/// Entries as rows with the buttons that remove and move the selected one.
class EntryListBox final : public QWidget
{
    Q_OBJECT

public:
    explicit EntryListBox(QWidget* parent = nullptr);

    /// Names the list and the buttons for readers of the screen: "resolution".
    void SetNoun(const QString& noun);
    /// Shows these entries.
    void Fill(const QStringList& texts, int current);
    /// Selects that row without a word.
    void Select(int row);
    EntryListView& List() { return *m_list; }
    /// Puts a further button in front of the others, or behind them.
    void AddButton(QWidget& button, bool isFirst);

private:
    QToolButton& NewButton(const char* name, const QString& tip);
    void Arm();

    EntryListView* m_list;
    QHBoxLayout* m_buttons;
    QToolButton* m_remove = nullptr;
    QToolButton* m_up = nullptr;
    QToolButton* m_down = nullptr;
};

} // namespace Vexlor::Studio
