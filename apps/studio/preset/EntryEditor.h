#pragma once

#include "ListFamilies.h"

#include <QWidget>

class QLineEdit;

namespace Vexlor::Studio
{

class CodecSession;
class EntryListBox;
class FieldManners;
class MessageLine;

/// Edits the entries of one list of a codec preset: adds what is typed, removes, moves and resets.
class EntryEditor final : public QWidget
{
    Q_OBJECT

public:
    EntryEditor(CodecSession& session, const ListFamily& family, FieldManners& manners,
                QWidget* parent = nullptr);

    /// Begins with the current entry, and typing.
    void Open();
    /// Shows the list as it is now.
    void Refresh();

signals:
    /// Escape was pressed.
    void Closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void SetUpInput(FieldManners& manners);
    void SetUpList();
    void Add();
    void Show(int index, int countBefore, const QString& text);
    void Choose(int row);
    void Remove(int row);
    void Move(int row, int by);
    void Reset();
    QString TextAt(int row) const;

    CodecSession& m_session;
    const ListFamily& m_family;
    QString m_noun;
    QLineEdit* m_input;
    MessageLine* m_message;
    EntryListBox* m_entries;
};

} // namespace Vexlor::Studio
