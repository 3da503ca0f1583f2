// main of the tests that open windows.
#include "ui/screens/help_window.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    // Screens of other kinds come as words behind it.
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen:")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kelvarine"));
    const int result = RUN_ALL_TESTS();
    // The help makes its index in the background and must not be overtaken by the end.
    delete kelvarine::OpenHelpWindow();
    return result;
}
