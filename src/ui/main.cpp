#include "configure/defaults.h"
#include "ui/program.h"
#include "ui/program_icon.h"

#include <QApplication>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kelvarine"));
    QApplication::setApplicationVersion(QStringLiteral(KELVARINE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("kelvarine"));
    QApplication::setWindowIcon(kelvarine::ProgramIcon());
    kelvarine::SetDefaults();
    return kelvarine::RunProgram();
}
