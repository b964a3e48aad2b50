#pragma once

#include <string>

namespace Vexlor
{

/// A number with as many decimals as it needs, at most maxDecimals, and a point whatever the locale: "29.97",
/// "30"; "inf" and "nan" for what is no number.
std::string FormatDecimal(double value, int maxDecimals);

} // namespace Vexlor
