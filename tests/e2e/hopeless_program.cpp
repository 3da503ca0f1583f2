// The program with wishes that no game can meet, so that a search goes on until it is stopped.
#include "generator/generator.h"
#include "program/defaults.h"
#include "ui/window/program.h"

#include <QApplication>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    kelvarine::SetDefaults();
    kelvarine::MinGivens = 10;
    kelvarine::MaxGivens = 16;
    return kelvarine::RunProgram();
}
