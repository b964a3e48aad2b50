#include "SizeWords.h"

#include "apps/host/Units.h"

#include <QCoreApplication>

#include <cmath>

namespace Vexlor::Studio
{

namespace
{

/// Makes the texts.
class Words final
{
    Q_DECLARE_TR_FUNCTIONS(Vexlor::Studio::SizeWords)

public:
    static QStringList Source(const SizeFacts& facts)
    {
        if (facts.source.isEmpty())
            return {};
        return QStringList{tr("Source"), Text(facts.source)} << Stored(facts.source, facts.storedSource);
    }

    static QStringList Output(const SizeFacts& facts)
    {
        if (facts.output.isEmpty())
            return {};
        auto lines = QStringList{tr("Output"), Text(facts.output)};
        lines << Stored(facts.output, facts.storedOutput) << Fit(facts);
        if (!facts.most.isEmpty())
            lines << tr("at most %1").arg(Text(facts.most));
        if (!facts.least.isEmpty())
            lines << tr("at least %1").arg(Text(facts.least));
        return lines;
    }

private:
    static QString Text(const QSizeF& size)
    {
        const auto whole = size.toSize();
        return QString::fromStdString(Tool::SizeText(whole.width(), whole.height()));
    }

    static QStringList Stored(const QSizeF& displayed, const QSize& stored)
    {
        return displayed.toSize() == stored || stored.isEmpty()
                   ? QStringList()
                   : QStringList(tr("stored as %1").arg(Text(stored)));
    }

    static QStringList Fit(const SizeFacts& facts)
    {
        constexpr double kPixel = 1;
        if (facts.isStretched)
            return {tr("stretched")};
        const auto beyond = facts.picture - facts.output;
        if (beyond.width() <= -kPixel)
            return {tr("padded left and right")};
        if (beyond.height() <= -kPixel)
            return {tr("padded above and below")};
        if (beyond.width() >= kPixel)
            return {tr("cut off left and right")};
        return beyond.height() >= kPixel ? QStringList(tr("cut off above and below")) : QStringList();
    }
};

QString Sentence(const QStringList& lines)
{
    return lines.isEmpty() ? QString()
                           : lines.first() + QStringLiteral(": ") + lines.mid(1).join(QStringLiteral(", ")) +
                                 QLatin1Char('.');
}

} // namespace

SizeWords SizeWordsOf(const SizeFacts& facts)
{
    SizeWords words{Words::Source(facts), Words::Output(facts), {}};
    words.description =
        QStringList{Sentence(words.source), Sentence(words.output)}.join(QLatin1Char(' ')).trimmed();
    return words;
}

} // namespace Vexlor::Studio
