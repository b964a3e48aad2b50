#pragma once

#include "ListFamilies.h"

#include <QTimer>
#include <QWidget>

class QComboBox;
class QToolButton;
class QVBoxLayout;

namespace Vexlor::Studio
{

class CodecSession;
class EntryEditor;
class FieldManners;

/// One list of a codec preset: the current entry to pick, and behind a button the editor of the entries.
class ListRow final : public QWidget
{
    Q_OBJECT

public:
    ListRow(CodecSession& session, const ListFamily& family, FieldManners& manners,
            QWidget* parent = nullptr);

    /// Shows the list as it is now.
    void Refresh();
    /// True where there is something to choose or to be seen of the list.
    bool IsOfUse() const;
    const ListFamily& Family() const { return m_family; }
    /// Puts a further widget below the entry.
    void AddBelow(QWidget& widget);

private:
    void SetUpEditing();
    void SetUpEditor(FieldManners& manners);
    void Choose(int index);
    void OpenEditor(bool isOpen);
    void ScrollToEditor();
    void CloseEditor();

    CodecSession& m_session;
    const ListFamily& m_family;
    QVBoxLayout* m_layout;
    QComboBox* m_entries;
    QToolButton* m_edit;
    EntryEditor* m_editor = nullptr;
    QTimer m_toScroll;
};

} // namespace Vexlor::Studio
