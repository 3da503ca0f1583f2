// The program with all techniques raising alerts and apt to be applied, as a player would choose
// them on the Logic tab.
#include "grid/grid.h"
#include "program/defaults.h"
#include "ui/window/program.h"

#include <QApplication>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    kelvarine::SetDefaults();
    kelvarine::AlertMask = 0x7FFFE;
    kelvarine::SolveMask = 0x7FFFE;
    return kelvarine::RunProgram();
}
