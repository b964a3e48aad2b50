#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // Neither a screen nor what a user at this desk has set.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir home;
    for (const auto* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, home.path().toUtf8());
    qputenv("LC_ALL", "C.UTF-8");

    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setOrganizationName("Vexlor");
    QApplication::setApplicationName("vxpresetstudio");
    return RUN_ALL_TESTS();
}
