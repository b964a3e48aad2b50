#include "Languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace Vexlor::Studio
{

Languages::Languages(const QString& code)
{
    const auto locale = code.isEmpty() ? QLocale::system() : QLocale(code);
    if (!code.isEmpty())
        QLocale::setDefault(locale);
    const auto load = [this](const QLocale& wanted)
    { return m_ours.load(wanted, "vxpresetstudio", "_", ":/translations"); };
    const bool isThere = load(locale);
    if (isThere || load(QLocale::English)) // which has plurals
        QCoreApplication::installTranslator(&m_ours);
    // Without it Qt's own texts stay English, as the others are then.
    if (isThere && m_qt.load(locale, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
}

} // namespace Vexlor::Studio
