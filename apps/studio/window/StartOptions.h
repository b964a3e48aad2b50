#pragma once

#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace Vexlor::Studio
{

/// What the program is started with.
struct StartOptions
{
    QString document = {};   ///< to open; empty for the built-in catalogue
    QString preset = {};     ///< to select, by its path of names or the end of it
    QString source = {};     ///< media file to open
    QString search = {};     ///< to narrow the tree to
    QString language = {};   ///< empty for the system's
    QString theme = {};      ///< "light", "dark" or "system"; empty for the one that was set last
    QSize size = {};         ///< of the window; not valid for the one that it had last
    QString screenshot = {}; ///< file for a picture of the window, after which the program ends
    bool checks = false;     ///< the document, and shows what is wrong with it
};

/// What reading a command line has come to.
struct StartResult
{
    std::optional<StartOptions> options = {}; ///< nothing where the program is to end at once
    QString text = {};                        ///< to print then
    int exitCode = 0;
};

/// The program's command line.
class StartLine
{
    Q_DECLARE_TR_FUNCTIONS(Vexlor::Studio::StartLine)

public:
    /// Reads the arguments, the first of which is the program.
    static StartResult Read(const QStringList& arguments);
    /// The language among the arguments, which everything else is to be told in; empty for the system's.
    static QString LanguageIn(const QStringList& arguments);
};

} // namespace Vexlor::Studio
