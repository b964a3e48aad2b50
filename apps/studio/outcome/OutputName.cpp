#include "OutputName.h"

#include <QDir>
#include <QFileInfo>

namespace Vexlor::Studio
{

// A document may name any container: nothing of it leads into another folder.
QString EndingOf(const QString& container)
{
    QString ending;
    for (const auto letter : container.toLower())
        if (letter.isLetterOrNumber())
            ending += letter;
    return ending;
}

QString FreeOutputName(const QString& source, const QString& ending, const QString& folder)
{
    constexpr int kTries = 1000;
    const QFileInfo file(source);
    const QDir place(QFileInfo(folder).isDir() ? folder : file.absolutePath());
    const auto name = file.completeBaseName();
    auto path = place.filePath(QStringLiteral("%1.%2").arg(name, ending));
    for (int i = 2; i < kTries && QFileInfo::exists(path); ++i)
        path = place.filePath(QStringLiteral("%1 %2.%3").arg(name).arg(i).arg(ending));
    return path;
}

} // namespace Vexlor::Studio
