// The program with wishes that no game can meet, so that a search goes on until it is stopped, and
// with logic that finds nothing, so that trial and error does too.
#include "generator/generator.h"
#include "grid/grid.h"
#include "logic/technique_masks.h"
#include "program/defaults.h"
#include "ui/window/program.h"

#include <QApplication>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    kelvarine::SetDefaults();
    kelvarine::MinGivens = 10;
    kelvarine::MaxGivens = 16;
    kelvarine::SolveMask = kelvarine::MaskOf({kelvarine::XWing}) | kelvarine::TrialBit;
    return kelvarine::RunProgram();
}
