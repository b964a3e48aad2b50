#include "Screenshot.h"

#include "StudioWindow.h"

#include <QApplication>
#include <QPixmap>
#include <QThreadPool>
#include <QTimer>

#include <cstdio>

namespace Vexlor::Studio
{

namespace
{

constexpr int kInterval = 250;    // milliseconds
constexpr int kCalmIntervals = 4; // without work on another thread

void Write(StudioWindow& window, const QString& path)
{
    const bool isWritten = window.grab().save(path);
    if (!isWritten)
        std::fprintf(stderr, "%s: cannot be written\n", qUtf8Printable(path));
    QApplication::exit(isWritten ? 0 : 1);
}

} // namespace

void TakeScreenshotAndEnd(StudioWindow& window, const QString& path)
{
    auto* timer = new QTimer(&window);
    QObject::connect(timer, &QTimer::timeout, &window,
                     [&window, path, timer, calm = 0]() mutable
                     {
                         calm = QThreadPool::globalInstance()->activeThreadCount() == 0 ? calm + 1 : 0;
                         if (calm < kCalmIntervals)
                             return;
                         timer->stop();
                         Write(window, path);
                     });
    timer->start(kInterval);
}

} // namespace Vexlor::Studio
