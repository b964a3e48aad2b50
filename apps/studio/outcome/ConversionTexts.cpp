#include "ConversionTexts.h"
#include "apps/studio/texts/ToolText.h"

#include <QLatin1Char>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace Vexlor::Studio
{

QString ConversionTexts::Duration(double seconds)
{
    constexpr long kMinute = 60;
    constexpr int kDecimal = 10;
    constexpr QLatin1Char kZero('0');
    const long all = std::lround(std::isfinite(seconds) ? std::clamp(seconds, 0.0, 1e9) : 0.0);
    const auto hours = all / kMinute / kMinute;
    const auto minutes = all / kMinute % kMinute;
    const auto rest = QStringLiteral("%1").arg(all % kMinute, 2, kDecimal, kZero);
    return hours > 0 ? QStringLiteral("%1:%2:%3").arg(hours).arg(minutes, 2, kDecimal, kZero).arg(rest)
                     : QStringLiteral("%1:%2").arg(minutes).arg(rest);
}

QString ConversionTexts::Progress(const Tool::ConversionProgress& progress)
{
    constexpr int kPercent = 100;
    QStringList parts;
    parts << (progress.duration > 0 ? tr("%1 %").arg(std::lround(progress.Share() * kPercent))
                                    : tr("%1 done").arg(Duration(progress.done)));
    if (progress.speed > 0)
        parts << tr("%1× speed").arg(progress.speed, 0, 'g', 3);
    if (progress.Left() >= 0)
        parts << tr("%1 left").arg(Duration(progress.Left()));
    parts << ToolText(Tool::SizeOfBytes(double(progress.bytes)));
    return parts.join(QStringLiteral(", "));
}

QString ConversionTexts::LikelySize(const Tool::SizeRange& size)
{
    return tr("about %1").arg(ToolText(Tool::SizeOfBytes(size.likely)));
}

QString ConversionTexts::SizeSpan(const Tool::SizeRange& size)
{
    const auto least = ToolText(Tool::SizeOfBytes(size.least));
    const auto most = ToolText(Tool::SizeOfBytes(size.most));
    return least == most ? least : tr("%1 to %2", "sizes of files").arg(least, most);
}

} // namespace Vexlor::Studio
