#include "print/print_settings.h"

namespace kelvarine {

std::int32_t PrintMode;
Flag PrintAspect;
Flag PrintCentre;
Flag PrintFullPage;
double PrintWidth;
double PrintHeight;
double PrintLeft;
double PrintTop;
Flag PrintIncludeSolutions;
Flag PrintGreyScale;
std::int32_t PrintGamesPerPage;
std::int32_t PrintPages;

void SetPrintDefaults()
{
    PrintMode = PrintCurrent;
    PrintAspect = True;
    PrintCentre = True;
    PrintFullPage = False;
    PrintWidth = 5;
    PrintHeight = 5;
    PrintLeft = 0;
    PrintTop = 0;
    PrintIncludeSolutions = True;
    PrintGreyScale = False;
    PrintGamesPerPage = 0;
    PrintPages = 1;
}

} // namespace kelvarine
