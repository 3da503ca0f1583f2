// main of the tests that open windows.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kelvarine"));
    return RUN_ALL_TESTS();
}
