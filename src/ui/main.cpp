#include "program/defaults.h"
#include "ui/window/program.h"
#include "ui/window/program_icon.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kelvarine"));
    QApplication::setApplicationVersion(QStringLiteral(KELVARINE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("kelvarine"));
    QApplication::setWindowIcon(kelvarine::ProgramIcon());
    kelvarine::SetDefaults();
    const QStringList arguments = QApplication::arguments();
    const QString file =
        arguments.size() > 1 ? QFileInfo(arguments[1]).absoluteFilePath() : QString();
    return kelvarine::RunProgram(QFile::encodeName(file).toStdString());
}
