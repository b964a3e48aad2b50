#pragma once

#include "Style.h"
#include "apps/host/convert/Conversion.h"

#include <string>

namespace Vexlor::Tool
{

/// "0:05", "1:02:03".
std::string DurationText(double seconds);
/// How far a conversion is: percent, speed, time left, size so far; "12 %, 1.5x, 0:05 left, 1.20 MB".
std::string ProgressText(const ConversionProgress& progress);
/// The same behind a bar, as wide as the style allows.
std::string ProgressBar(const ConversionProgress& progress, const Style& style);

/// Shows on standard output how far a conversion is: on a terminal in one line that changes, elsewhere in a
/// line for every tenth of it.
class ProgressLines
{
public:
    explicit ProgressLines(const Style& style) : m_style(style) {}

    void Show(const ConversionProgress& progress);
    /// Takes the changing line away.
    void End();

private:
    Style m_style;
    int m_tenths = 0;
    bool m_isShown = false;
    std::string m_last;
};

} // namespace Vexlor::Tool
