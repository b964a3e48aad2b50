#include "DescriptionField.h"

#include "FieldManners.h"

#include <QSignalBlocker>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace Vexlor::Studio
{

DescriptionField::DescriptionField(FieldManners& manners, QWidget* parent) : QPlainTextEdit(parent)
{
    manners.Teach(*this);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { emit Typed(toPlainText(), m_run.Id()); });
}

void DescriptionField::Show(const QString& text)
{
    if (text == toPlainText())
        return;
    const QSignalBlocker blocker(this);
    const int position = textCursor().position();
    setPlainText(text);
    auto cursor = textCursor();
    cursor.setPosition(hasFocus() ? std::min(position, document()->characterCount() - 1) : 0);
    setTextCursor(cursor);
}

QSize DescriptionField::sizeHint() const
{
    constexpr int kLines = 3;
    // The margin below would show the head of a fourth line.
    const auto frame = 2 * frameWidth() + static_cast<int>(document()->documentMargin());
    return {fontMetrics().averageCharWidth() * 20, fontMetrics().lineSpacing() * kLines + frame};
}

void DescriptionField::focusOutEvent(QFocusEvent* event)
{
    m_run.End();
    QPlainTextEdit::focusOutEvent(event);
}

} // namespace Vexlor::Studio
