#include "StartOptions.h"

#include <QCommandLineParser>

namespace Vexlor::Studio
{

namespace
{

/// "1400x900"; not valid for anything else.
QSize SizeOf(const QString& text)
{
    const auto sides = text.split('x');
    const QSize size = sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
    return size.width() > 0 && size.height() > 0 && size.width() <= 8192 && size.height() <= 8192 ? size
                                                                                                  : QSize();
}

constexpr auto* kLanguage = "--language";

/// The option's value is none of the choices.
bool IsNoChoice(const QCommandLineParser& line, const char* option, const QStringList& choices)
{
    return line.isSet(option) && !choices.contains(line.value(option));
}

} // namespace

QString StartLine::LanguageIn(const QStringList& arguments)
{
    for (int i = 1; i < arguments.size(); ++i)
        if (arguments[i].startsWith(QString(kLanguage) + '='))
            return arguments[i].section('=', 1);
        else if (arguments[i] == kLanguage)
            return arguments.value(i + 1);
    return {};
}

StartResult StartLine::Read(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Shows, picks and edits the output presets of a media converter."));
    parser.addPositionalArgument("document", tr("preset document to open"), "[document]");
    const auto help = parser.addHelpOption();
    const auto version = parser.addVersionOption();
    parser.addOptions({
        {"preset", tr("select the preset of that path, or the first whose path ends so"), tr("path")},
        {"source", tr("open that media file"), tr("file")},
        {"search", tr("narrow the tree to what has these words"), tr("text")},
        {"check", tr("look for what is wrong with the document")},
        {"theme", tr("light, dark or system"), tr("name")},
        {"language", tr("language of the texts: en or de"), tr("code")},
        {"size", tr("size of the window, as 1400x900"), tr("size")},
        {"screenshot", tr("write a picture of the window to that file, and end"), tr("file")},
    });
    if (!parser.parse(arguments))
        return {{}, parser.errorText() + '\n', 2};
    if (parser.isSet(help))
        return {{}, parser.helpText(), 0};
    if (parser.isSet(version))
        return {
            {}, QCoreApplication::applicationName() + ' ' + QCoreApplication::applicationVersion() + '\n', 0};
    if (parser.isSet("size") && !SizeOf(parser.value("size")).isValid())
        return {{}, tr("\"%1\" is no size, as 1400x900 is one.").arg(parser.value("size")) + '\n', 2};
    if (IsNoChoice(parser, "theme", {"light", "dark", "system"}))
        return {
            {}, tr("\"%1\" is no theme; light, dark and system are.").arg(parser.value("theme")) + '\n', 2};
    if (IsNoChoice(parser, "language", {"en", "de"}))
        return {{},
                tr("\"%1\" is no language of the program; en and de are.").arg(parser.value("language")) +
                    '\n',
                2};
    if (parser.positionalArguments().size() > 1)
        return {{}, tr("There can be one document at a time.") + '\n', 2};
    return {StartOptions{parser.positionalArguments().value(0), parser.value("preset"),
                         parser.value("source"), parser.value("search"), parser.value("language"),
                         parser.value("theme"), SizeOf(parser.value("size")), parser.value("screenshot"),
                         parser.isSet("check")}};
}

} // namespace Vexlor::Studio
