#pragma once

#include <QObject>
#include <QString>

namespace Vexlor::Studio
{

class StudioWindow;

/// Writes a picture of the window to that file when it has come to rest, and ends the program: with 0, or
/// with 1 where the file cannot be written, what the window was started with is not shown, or there is no
/// rest for so many milliseconds.
void TakeScreenshotAndEnd(StudioWindow& window, const QString& path, int patience = 60'000);

} // namespace Vexlor::Studio
