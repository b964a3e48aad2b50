#include "BitrateWords.h"

#include "apps/host/Units.h"
#include "apps/studio/texts/ToolText.h"

#include "IVXCodecs.h"

#include <QCoreApplication>
#include <QStringList>

namespace Vexlor::Studio
{

namespace
{

QString GradeName(int grade)
{
    return GradeText(IVXCodecs::QualityLevelName(static_cast<IVXCodecs::QualityLevel>(grade)));
}

/// Makes the sentences.
class Words final
{
    Q_DECLARE_TR_FUNCTIONS(Vexlor::Studio::BitrateWords)

public:
    static QString Marks(const GradeMark& mark)
    {
        constexpr int kAll = BitrateFacts::kGrades - 1;
        if (mark.first == mark.last)
            return GradeName(mark.first);
        return mark.first == 0 && mark.last == kAll
                   ? tr("every grade")
                   : tr("%1 to %2", "grades").arg(GradeName(mark.first), GradeName(mark.last));
    }

    static QString Describe(const BitrateFacts& facts)
    {
        QStringList sentences{tr("Output: %1.").arg(BitrateShown(facts.output))};
        if (facts.source > 0)
            sentences << tr("Source: %1.").arg(BitrateShown(facts.source));
        if (facts.least > 0)
            sentences << Bound(facts.isLeastOfPreset, tr("At least %1 by the preset."),
                               tr("At least %1 suits the codec."), facts.least);
        if (facts.most > 0)
            sentences << Bound(facts.isMostOfPreset, tr("At most %1 by the preset."),
                               tr("At most %1 suits the codec."), facts.most);
        QStringList grades;
        for (const auto& mark : MarksOf(facts))
            grades << tr("%1 %2", "grade and its bitrate").arg(Marks(mark), BitrateShown(mark.bitrate));
        if (!grades.isEmpty())
            sentences << tr("Grades: %1.").arg(grades.join(QStringLiteral(", ")));
        if (!facts.followsBitrate)
            sentences << tr("What the codec takes follows from the content, not from a bitrate.");
        return sentences.join(QLatin1Char(' '));
    }

private:
    static QString Bound(bool isOfPreset, const QString& preset, const QString& codec, int bitrate)
    {
        return (isOfPreset ? preset : codec).arg(BitrateShown(bitrate));
    }
};

} // namespace

QString GradeText(const GradeMark& mark) { return Words::Marks(mark); }

QString BitrateShown(int bitrate)
{
    return bitrate < 1 ? QStringLiteral("–") : ToolText(Tool::BitrateText(bitrate));
}

QString BitrateDescription(const BitrateFacts& facts) { return Words::Describe(facts); }

} // namespace Vexlor::Studio
