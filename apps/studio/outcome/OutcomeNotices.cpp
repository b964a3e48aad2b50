#include "OutcomeNotices.h"

#include "Outcome.h"
#include "apps/studio/texts/ToolText.h"

#include <QCoreApplication>

namespace Vexlor::Studio
{

namespace
{

/// Makes the texts.
class Notices final
{
    Q_DECLARE_TR_FUNCTIONS(Vexlor::Studio::OutcomeNotices)

public:
    static QString Html(const Outcome& outcome, const QStringList& offered)
    {
        QString html;
        for (const auto& warning : outcome.warnings)
            html += Entry(warning.isAudio ? tr("Warning (sound):") : tr("Warning (video):"), warning.text,
                          Remedies(warning, offered));
        for (const auto& change : outcome.changes)
            html += Entry(tr("Gives way:"), change, {});
        return html;
    }

private:
    static QString Escaped(const std::string& text) { return ToolText(text).toHtmlEscaped(); }

    static QString Entry(const QString& title, const std::string& text, const QString& remedies)
    {
        return QStringLiteral("<p style=\"margin:0\"><b>%1</b> %2</p>%3")
            .arg(title.toHtmlEscaped(), Escaped(text), remedies);
    }

    static QString Remedies(const Tool::MatchWarning& warning, const QStringList& offered)
    {
        QString items;
        for (const auto& remedy : warning.remedies)
            if (!offered.contains(ToolText(remedy.text)))
                items += QStringLiteral("<li>%1</li>").arg(Escaped(remedy.text));
        return items.isEmpty() ? QString() : QStringLiteral("<ul style=\"margin:0\">%1</ul>").arg(items);
    }
};

} // namespace

QString NoticesHtml(const Outcome& outcome, const QStringList& offered)
{
    return Notices::Html(outcome, offered);
}

} // namespace Vexlor::Studio
