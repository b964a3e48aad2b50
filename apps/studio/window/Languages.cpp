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
    if (m_ours.load(locale, "vxpresetstudio", "_", ":/translations"))
        QCoreApplication::installTranslator(&m_ours);
    if (m_qt.load(locale, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
}

} // namespace Vexlor::Studio
