#pragma once

#include <QString>

// How changes are named in the Edit menu. What is changed is told as a noun without an article, small.

namespace Vexlor::Studio
{

/// "Change frame rate"
QString ChangeText(const QString& what);
/// "Change frame rate to 25 fps"
QString ChangeText(const QString& what, const QString& value);
/// "Add resolution 1440 x 1080"
QString AddText(const QString& what, const QString& value);
/// "Remove resolution 1440 x 1080"
QString RemoveText(const QString& what, const QString& value);
/// "Move resolution 1440 x 1080"
QString MoveText(const QString& what, const QString& value);
/// "Reset entries of resolution"
QString ResetText(const QString& what);

} // namespace Vexlor::Studio
