#include "Screenshot.h"

#include "StudioWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <QTimer>

#include <cstdio>

namespace Vexlor::Studio
{

namespace
{

constexpr int kInterval = 250;    // milliseconds
constexpr int kCalmIntervals = 4; // in which what has come is laid out and painted

/// Writes the picture. Answers why not, where it is not one of what was asked for.
QString Write(StudioWindow& window, const QString& path, bool isCalm)
{
    if (!isCalm)
        return path + ": not written, for the window did not come to rest";
    if (!window.Unshown().isEmpty())
        return window.Unshown().join('\n');
    return window.grab().save(path) ? QString() : path + ": cannot be written";
}

void End(const QString& failure)
{
    if (!failure.isEmpty())
        std::fprintf(stderr, "%s\n", qUtf8Printable(failure));
    QApplication::exit(failure.isEmpty() ? 0 : 1);
}

} // namespace

void TakeScreenshotAndEnd(StudioWindow& window, const QString& path, int patience)
{
    QElapsedTimer clock;
    clock.start();
    auto* timer = new QTimer(&window);
    QObject::connect(timer, &QTimer::timeout, &window,
                     [&window, path, patience, timer, clock, calm = 0]() mutable
                     {
                         calm = window.IsAtRest() ? calm + 1 : 0;
                         const bool isLate = clock.hasExpired(patience);
                         if (calm < kCalmIntervals && !isLate)
                             return;
                         timer->stop();
                         End(Write(window, path, calm >= kCalmIntervals));
                     });
    timer->start(kInterval);
}

} // namespace Vexlor::Studio
