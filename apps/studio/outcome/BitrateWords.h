#pragma once

#include "BitrateScale.h"

#include <QString>

namespace Vexlor::Studio
{

/// "Normal", "High to Best": the grades of a mark.
QString GradeText(const GradeMark& mark);
/// "6.00 Mb/s"; a dash for a bitrate that is not known.
QString BitrateShown(int bitrate);
/// What the drawing of those bitrates shows, in sentences.
QString BitrateDescription(const BitrateFacts& facts);

} // namespace Vexlor::Studio
