#include "program/defaults.h"
#include "ui/window/program.h"
#include "ui/window/program_icon.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>

#include <cstdlib>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName("kelvarine");
    // In these letters the version is looked for in the finished program.
    QApplication::setApplicationVersion(QStringLiteral(KELVARINE_VERSION));
    QApplication::setDesktopFileName("kelvarine");
    QApplication::setWindowIcon(kelvarine::ProgramIcon());
    kelvarine::SetDefaults();
    const QStringList arguments = QApplication::arguments();
    const QString file =
        arguments.size() > 1 ? QFileInfo(arguments[1]).absoluteFilePath() : QString();
    const int result = kelvarine::RunProgram(QFile::encodeName(file).toStdString());
    // Everything is kept by now. On its way off Wayland the toolkit now and then waits for ever for
    // a thread of its own, and the player would be left with a program that nobody sees.
    if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {
        std::_Exit(result);
    }
    return result;
}
