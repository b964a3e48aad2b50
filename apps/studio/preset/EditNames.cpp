#include "EditNames.h"

#include <QCoreApplication>

namespace Vexlor::Studio
{

namespace
{

QString Translated(const char* text) { return QCoreApplication::translate("EditNames", text); }

} // namespace

QString ChangeText(const QString& what)
{
    return Translated(QT_TRANSLATE_NOOP("EditNames", "Change %1")).arg(what);
}

QString ChangeText(const QString& what, const QString& value)
{
    return Translated(QT_TRANSLATE_NOOP("EditNames", "Change %1 to %2")).arg(what, value);
}

QString AddText(const QString& what, const QString& value)
{
    return Translated(QT_TRANSLATE_NOOP("EditNames", "Add %1 %2")).arg(what, value);
}

QString RemoveText(const QString& what, const QString& value)
{
    return Translated(QT_TRANSLATE_NOOP("EditNames", "Remove %1 %2")).arg(what, value);
}

QString MoveText(const QString& what, const QString& value)
{
    return Translated(QT_TRANSLATE_NOOP("EditNames", "Move %1 %2")).arg(what, value);
}

QString ResetText(const QString& what)
{
    return Translated(QT_TRANSLATE_NOOP("EditNames", "Reset entries of %1")).arg(what);
}

} // namespace Vexlor::Studio
