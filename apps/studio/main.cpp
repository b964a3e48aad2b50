#include "document/Aside.h"
#include "window/Languages.h"
#include "window/Screenshot.h"
#include "window/StartOptions.h"
#include "window/StudioWindow.h"

#include <QApplication>
#include <QIcon>

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace
{

using namespace Vexlor::Studio;

void Name()
{
    QApplication::setOrganizationName("Vexlor");
    QApplication::setApplicationName("vxpresetstudio");
    QApplication::setApplicationVersion(VX_VERSION);
    QApplication::setDesktopFileName("org.vexlor.vxpresetstudio");
    QApplication::setWindowIcon(
        QIcon::fromTheme("org.vexlor.vxpresetstudio", QIcon(":/icons/org.vexlor.vxpresetstudio.svg")));
}

int Run(const StartOptions& options)
{
    StudioWindow window;
    window.show();
    window.Start(options);
    if (!options.screenshot.isEmpty())
        TakeScreenshotAndEnd(window, options.screenshot);
    return QApplication::exec();
}

/// A file that does not answer keeps no program from ending, nor does what reads it find things gone.
int End(int exitCode)
{
    constexpr std::chrono::seconds kPatience(3);
    if (!AwaitAside(kPatience))
        std::_Exit(exitCode);
    return exitCode;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // Qt takes the desktop's, but the ffmpeg program reads and writes points
    Name();
    const Languages languages(StartLine::LanguageIn(QApplication::arguments()));
    const auto start = StartLine::Read(QApplication::arguments());
    if (start.options)
        return End(Run(*start.options));
    std::fprintf(start.exitCode == 0 ? stdout : stderr, "%s", qUtf8Printable(start.text));
    return start.exitCode;
}
