#pragma once

#include <QUndoStack>

namespace Vexlor::Studio
{

/// While it lives, all steps are one.
class UndoMacro final
{
public:
    UndoMacro(QUndoStack& stack, const QString& text) : m_stack(stack) { m_stack.beginMacro(text); }
    ~UndoMacro() { m_stack.endMacro(); }
    UndoMacro(const UndoMacro&) = delete;
    UndoMacro& operator=(const UndoMacro&) = delete;

private:
    QUndoStack& m_stack;
};

} // namespace Vexlor::Studio
