#pragma once

#include "apps/host/convert/Conversion.h"
#include "apps/host/match/SizeEstimate.h"

#include <QCoreApplication>
#include <QString>

namespace Vexlor::Studio
{

/// What is said of a conversion and of the size that comes of it.
class ConversionTexts final
{
    Q_DECLARE_TR_FUNCTIONS(Vexlor::Studio::ConversionTexts)

public:
    /// "0:07", "1:02:03".
    static QString Duration(double seconds);
    /// "42 %, 3.1 times as fast as it plays, 0:07 left, 1.50 MB".
    static QString Progress(const Tool::ConversionProgress& progress);
    /// "about 12.3 MB".
    static QString LikelySize(const Tool::SizeRange& size);
    /// "8.00 MB to 14.0 MB"; one size where both are the same.
    static QString SizeSpan(const Tool::SizeRange& size);
};

} // namespace Vexlor::Studio
