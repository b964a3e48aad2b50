#pragma once

#include <QString>

namespace Vexlor::Studio
{

/// How a user made an output last.
struct OutputHabits
{
    int fitting = 0;     ///< of the picture, a Tool::PictureFitting; another number is that of the first
    QString folder = {}; ///< that the output went to; empty for that of the source
};

} // namespace Vexlor::Studio
