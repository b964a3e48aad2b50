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

void End(const QString& path, const char* failure)
{
    if (failure != nullptr)
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(path), failure);
    QApplication::exit(failure == nullptr ? 0 : 1);
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
                         End(path, calm < kCalmIntervals ? "not written, for the window did not come to rest"
                                   : window.grab().save(path) ? nullptr
                                                              : "cannot be written");
                     });
    timer->start(kInterval);
}

} // namespace Vexlor::Studio
