#include "configure/defaults.h"
#include "ui/program.h"

#include <QApplication>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kelvarine"));
    QApplication::setApplicationVersion(QStringLiteral(KELVARINE_VERSION));
    kelvarine::SetDefaults();
    return kelvarine::RunProgram();
}
