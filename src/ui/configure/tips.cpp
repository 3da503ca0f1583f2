#include "ui/configure/tips.h"

#include "paint/text.h"

#include <QRegularExpression>
#include <QWidget>

#include <algorithm>
#include <array>
#include <string_view>

namespace kelvarine {

namespace {

// By the name of a control, or of the array that it belongs to.
struct Tip {
    std::string_view Name;
    std::string_view Words;
};

constexpr std::array Tips{
    // New Games
    Tip{"chkDifficulty", "New games may be of this level"},
    Tip{"txtMinNumGivens", "New games show at least so many numbers"},
    Tip{"txtMaxNumGivens", "New games show at most so many numbers"},
    Tip{"optRevealPattern", "How the shown numbers of a new game lie on the board"},
    Tip{"chkFillPMs", "New games start with all pencilmarks"},
    Tip{"chkApplySolveLogic", "New games start after the techniques chosen for solving"},
    // Sound
    Tip{"cmbSoundAlert", "The sound for a new alert"},
    Tip{"cmdTestAlert", "Plays the alert sound as a test"},
    Tip{"cmbSoundWin", "The sound for a solved game"},
    Tip{"cmdTestWin", "Plays the win sound once, as a test"},
    Tip{"chkDisableAllSound", "The game is silent; the tests still sound"},
    // Print
    Tip{"optPrintGame", "Whether the game on the board is printed, or new games"},
    Tip{"txtPrintLeft", "From the left edge of the printable area to the game"},
    Tip{"txtPrintTop", "From the upper edge of the printable area to the game"},
    Tip{"txtPrintWidth", "How wide the game is printed"},
    Tip{"txtPrintHeight", "How high the game is printed"},
    Tip{"chkPrintCenter", "The game stands in the middle of the page"},
    Tip{"chkFullPage", "The game is as large as the printable area"},
    Tip{"chkAspect", "Width and height keep the form of the board"},
    Tip{"cmbGamesPerPage", "How many new games stand on a page"},
    Tip{"txtNumPages", "How many pages of new games are printed"},
    Tip{"chkIncludeSolutions", "The solutions follow on pages of their own"},
    Tip{"chkGreyScale", "Kept while the program runs"},
    Tip{"cmdShowLight", "Shows this page in a light look; the board keeps its own"},
    Tip{"cmdPrint", "Starts printing (Enter); pressed again it asks whether to stop"},
    // Logic
    Tip{"chkUseLogic", "Solving by logic may use this technique"},
    Tip{"chkShowConflicts", "Cells that this technique contradicts are marked"},
    Tip{"lblDifficulty", "The level of this technique; a press changes it"},
    Tip{"txtMaxXYLinks", "Longer chains are not looked at"},
    Tip{"txtMaxRPLinks", "Longer chains are not looked at"},
    Tip{"txtMaxSinglesLinks", "Longer chains are not looked at"},
    Tip{"cmdSelectAllSolves", "Solving may use every technique"},
    Tip{"cmdSelectAllAlerts", "Every technique marks cells"},
    Tip{"cmdDeselectAllSolves", "Solving uses no technique"},
    Tip{"cmdDeselectAllAlerts", "No technique marks cells"},
    Tip{"chkIncludeSingles", "Naked and hidden groups may include singles"},
    // Preset Grids
    Tip{"picPresetGrid", "Gives the board this look"},
    // Grid
    Tip{"hsbPrimGridThick", "How thick the lines between the boxes are"},
    Tip{"hsbSecGridThick", "How thick the lines between the cells are"},
    Tip{"hsbThicknessExt3dBorder", "How thick the frame round the board is"},
    Tip{"hsbExtMarginThickness", "How wide the margin with the coordinates is"},
    Tip{"chk3DPrimGrid", "The lines between the boxes look raised"},
    Tip{"chk3DSecGrid", "The lines between the cells look raised"},
    Tip{"chk3DExposedCells", "Given cells have a 3D frame"},
    Tip{"chk3DUnknownCells", "Cells to be filled have a 3D frame"},
    Tip{"chk3DSelectedCells", "Selected cells have a 3D frame"},
    Tip{"optPencilmarkGrid", "How pencilmarks are laid out in a cell"},
    Tip{"chkPencilmarkGridLines", "Lines between the pencilmarks of a cell"},
    // Colors
    Tip{"optTableColors", "The color that the rest of this tab changes"},
    Tip{"picColorpal", "A press gives the chosen color the one under the mouse"},
    Tip{"hsbColor", "How much of this light the chosen color has"},
    // Coordinates
    Tip{"optColumnFormat", "How columns are named"},
    Tip{"optRowFormat", "How rows are named"},
    Tip{"optCoordSeparator", "What stands between column and row"},
    Tip{"optCoordBrackets", "What stands round the name of a cell"},
    Tip{"cmdCoordFirst", "Whether column or row comes first"},
};

// The name of a control without its index.
QString ArrayName(const QString &name)
{
    static const QRegularExpression index(R"(\(?\d+\)?$)");
    return QString(name).remove(index);
}

} // namespace

void GiveTips(const QWidget &screen)
{
    for (QWidget *control : screen.findChildren<QWidget *>()) {
        const std::string name = ArrayName(control->objectName()).toStdString();
        const auto *tip = std::ranges::find(Tips, name, &Tip::Name);
        if (tip != Tips.end() && control->toolTip().isEmpty()) {
            control->setToolTip(Text(tip->Words));
        }
    }
}

} // namespace kelvarine
