#include "TextField.h"

#include "FieldManners.h"

#include <QSignalBlocker>

namespace Vexlor::Studio
{

TextField::TextField(FieldManners& manners, QWidget* parent) : QLineEdit(parent)
{
    manners.Teach(*this);
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& text) { emit Typed(text, m_run.Id()); });
    connect(this, &QLineEdit::editingFinished, this, [this] { m_run.End(); });
}

void TextField::Show(const QString& text)
{
    if (text == this->text())
        return;
    const QSignalBlocker blocker(this);
    const int cursor = cursorPosition();
    setText(text);
    setCursorPosition(hasFocus() ? cursor : 0);
}

} // namespace Vexlor::Studio
