#include "input/menu_table.h"

#include "board/look.h"
#include "board/margin.h"
#include "commands/file_commands.h"
#include "commands/new_games.h"
#include "commands/restart.h"
#include "commands/screen_commands.h"
#include "commands/text_commands.h"
#include "game/assistance.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/logic_report.h"
#include "game/screens.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "game/transforms.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/givens.h"
#include "input/keys.h"
#include "input/mouse.h"
#include "input/number_keys.h"
#include "input/selection.h"
#include "input/toolbar.h"
#include "outside/board.h"
#include "outside/screens.h"
#include "outside/window.h"

#include <array>

namespace kelvarine {

namespace {

template <auto Command>
void Plain(std::int32_t /*number*/)
{
    Command();
}

// The entries of the numbers act as the keys that their shortcuts name.
template <std::int32_t Shift>
void TypeNumber(std::int32_t number)
{
    KeyDown(DigitCode + number, Shift);
}

template <std::int32_t Code, std::int32_t Shift>
void PressKey(std::int32_t /*number*/)
{
    KeyDown(Code, Shift);
}

void mnuGridView(std::int32_t number)
{
    Flag update = False;
    ProcessNumKey(number, ViewMode, Replace, update);
    DrawBoard();
}

Flag Flipped(Flag flag)
{
    return FlagOf(flag == False);
}

void mnuViewToolBar()
{
    ToolbarVisible = Flipped(ToolbarVisible);
    ResizeWindow();
}

void mnuViewToolTips()
{
    ToolTipsVisible = Flipped(ToolTipsVisible);
    UpdateToolTips();
    UpdateToolbar();
}

void mnuStrongLinks(std::int32_t mode)
{
    StrongLinkMode = mode;
    DrawBoard();
}

void mnuViewCoordinates()
{
    CoordinatesVisible = Flipped(CoordinatesVisible);
    if (CoordinatesVisible != False && MarginThickness < LeastTextMargin) {
        if (ConfigureOpen != False) {
            MoveMarginBar(LeastTextMargin); // its change does the rest
            return;
        }
        MarginThickness = LeastTextMargin;
    }
    ResizeWindow();
}

bool CanUndo(std::int32_t /*number*/)
{
    return HistoryPosition < HistoryCount;
}

bool CanRedo(std::int32_t /*number*/)
{
    return HistoryPosition >= 2;
}

bool HasSnapshot(std::int32_t /*number*/)
{
    return SnapshotAvailable != False;
}

bool ShowsToolbar(std::int32_t /*number*/)
{
    return ToolbarVisible != False;
}

bool ShowsToolTips(std::int32_t /*number*/)
{
    return ToolTipsVisible != False;
}

bool LinksAsSet(std::int32_t mode)
{
    return StrongLinkMode == mode;
}

bool ShowsCoordinates(std::int32_t /*number*/)
{
    return CoordinatesVisible != False;
}

// For 0 this looks at a bit that the filter never holds, so "All" is never checked; intended.
bool IsInView(std::int32_t number)
{
    return (BitOf(number) & NumberFilter) != 0;
}

constexpr std::array Rows{
    MenuRow{1, "mnuGame", "&Game", ""},
    MenuRow{2, "mnuNew", "&New", ""},
    MenuRow{3, "mnuGameRandom", "&Random", "Ctrl+N", Plain<mnuGameRandom>},
    MenuRow{3, "mnuGameClipboard", "From &clipboard", "Ctrl+V", Plain<mnuGameClipboard>},
    MenuRow{3, "mnuGameTextString", "From &text string", "Ctrl+T", Plain<mnuGameTextString>},
    MenuRow{3, "mnuGameBlankGrid", "&Blank grid", "Ctrl+B", Plain<mnuGameBlankGrid>},
    MenuRow{2, "mnuRestartSameGame", "&Restart", "Ctrl+R", Plain<mnuRestartSameGame>},
    MenuRow{2, "mnuOpen", "&Open", "Ctrl+O", Plain<mnuOpen>},
    MenuRow{2, "mnuSave", "&Save", "Ctrl+S", Plain<mnuSave>},
    MenuRow{2, "mnuSaveAs", "Save &As", "Ctrl+A", Plain<mnuSaveAs>},
    MenuRow{2, "mnuCopy2Clipboard", "Copy to clip&board", ""},
    MenuRow{3, "mnuCopyGridFormat", "&Grid format", "Ctrl+C", Plain<mnuCopyGridFormat>},
    MenuRow{3, "mnuCopySingleLineFormat", "&Single-line format", "Ctrl+ -",
            Plain<mnuCopySingleLineFormat>},
    MenuRow{2, "mnuPrint", "&Print", "Ctrl+P", Plain<mnuPrint>},
    MenuRow{2, "mnuBreak1", SeparatorCaption, ""},
    MenuRow{2, "mnuConfigure", "&Configure ...", "", Plain<mnuConfigure>},
    MenuRow{1, "mnuAction", "&Action", ""},
    MenuRow{2, "mnuUndo", "&UnDo (Page Up)", "Ctrl+Z", PressKey<PageUpCode, 0>, 0, 0, CanUndo},
    MenuRow{2, "mnuReDo", "R&eDo (Page Dn)", "Ctrl+Y", PressKey<PageDownCode, 0>, 0, 0, CanRedo},
    MenuRow{2, "mnuBreak2", SeparatorCaption, ""},
    MenuRow{2, "mnuSet", "Place ca&ndidates", ""},
    MenuRow{3, "mnuSetNumbers", "&#", "", TypeNumber<0>, 1, 9},
    MenuRow{2, "mnuInsert", "&Add candidates", ""},
    MenuRow{3, "mnuInsertNumber", "&All", "Insert", PressKey<InsertCode, 0>},
    MenuRow{3, "mnuInsertNumber", "&#", "Ctrl+#", TypeNumber<CtrlKey>, 1, 9},
    MenuRow{2, "mnuDelete", "Re&move candidates", ""},
    MenuRow{3, "mnuDeleteNumber", "&All", "Del", PressKey<DeleteCode, 0>},
    MenuRow{3, "mnuDeleteNumber", "&#", "Shift+#", TypeNumber<ShiftKey>, 1, 9},
    MenuRow{2, "mnuBreak3", SeparatorCaption, ""},
    MenuRow{2, "mnuTakeSnapshot", "Take &snapshot", "S", Plain<mnuTakeSnapshot>},
    MenuRow{2, "mnuUseSnapshot", "&Use snapshot", "U", Plain<mnuUseSnapshot>, 0, 0, HasSnapshot},
    MenuRow{2, "mnuBreak4", SeparatorCaption, ""},
    MenuRow{2, "mnuSelectColumn", "Select &column", "C", Plain<mnuSelectColumn>},
    MenuRow{2, "mnuSelectRow", "Select &row", "R", Plain<mnuSelectRow>},
    MenuRow{2, "mnuSelectBox", "Select &box", "B", Plain<mnuSelectBox>},
    MenuRow{2, "mnuSelectDomain", "Select &domain", "D", Plain<mnuSelectDomain>},
    MenuRow{2, "mnuSelectPeers", "Select &peers", "P", Plain<mnuSelectPeers>},
    MenuRow{2, "mnuSelectIntersection", "Select &intersection", "I", Plain<mnuSelectIntersection>},
    MenuRow{2, "mnuSelectWholeGrid", "Select &whole grid", "W", Plain<mnuSelectWholeGrid>},
    MenuRow{2, "mnuBreak5", SeparatorCaption, ""},
    MenuRow{2, "mnuGridOrientation", "Grid &orientation", ""},
    MenuRow{3, "mnuRotateGrid90Left", "Rotate 90` &left", "Shift+L", Plain<mnuRotateGrid90Left>},
    MenuRow{3, "mnuRotateGrid90Right", "Rotate 90` &right", "Shift+R", Plain<mnuRotateGrid90Right>},
    MenuRow{3, "mnuMirrorGrid", "&Mirror (horizontal)", "Shift+M", Plain<mnuMirrorGrid>},
    MenuRow{3, "mnuFlipGrid", "&Flip (vertical)", "Shift+F", Plain<mnuFlipGrid>},
    MenuRow{1, "mnuView", "&View", ""},
    MenuRow{2, "mnuViewToolBar", "&Toolbar", "", Plain<mnuViewToolBar>, 0, 0, nullptr,
            ShowsToolbar},
    MenuRow{2, "mnuViewToolTips", "T&oolbar tips", "", Plain<mnuViewToolTips>, 0, 0, ShowsToolbar,
            ShowsToolTips},
    MenuRow{2, "mnuViewCoordinates", "&Coordinates", "", Plain<mnuViewCoordinates>, 0, 0, nullptr,
            ShowsCoordinates},
    MenuRow{2, "mnuAlerts", "&Alerts ...", "", Plain<mnuAlerts>},
    MenuRow{2, "mnuStrong", "&Strong links", ""},
    MenuRow{3, "mnuStrongLinks", "&Never", "", mnuStrongLinks, 0, 0, nullptr, LinksAsSet},
    MenuRow{3, "mnuStrongLinks", "&Only in isolated views", "", mnuStrongLinks, 1, 1, nullptr,
            LinksAsSet},
    MenuRow{3, "mnuStrongLinks", "&Always", "", mnuStrongLinks, 2, 2, nullptr, LinksAsSet},
    MenuRow{2, "mnuIsolatedNumbers", "&Isolated numbers", ""},
    MenuRow{3, "mnuGridView", "&All", "Ctrl+Shift+#", mnuGridView, 0, 0, nullptr, IsInView},
    MenuRow{3, "mnuGridView", "&#'s", "Ctrl+Shift+#", mnuGridView, 1, 9, nullptr, IsInView},
    MenuRow{1, "mnuStatistics", "&Statistics", "", Plain<mnuStatistics>},
    MenuRow{1, "mnuHelp", "&Help", ""},
    MenuRow{2, "mnuHelpContents", "&Contents ...", "", Plain<mnuHelpContents>},
    MenuRow{2, "mnuBreak6", SeparatorCaption, ""},
    MenuRow{2, "mnuHint", "&Hint", "H", Plain<mnuHint>},
    MenuRow{2, "mnuShowAlertReason", "Show reason for &alert in selected cell", "A",
            Plain<mnuShowAlertReason>},
    MenuRow{2, "mnuShowLogicNeeded", "Show &logic needed to solve", "L", Plain<mnuShowLogicNeeded>},
    MenuRow{2, "mnuApplyLogic", "Apply selected solve l&ogic", "Ctrl+L", Plain<mnuApplyLogic>},
    MenuRow{2, "mnuShowSolution", "Show &solution(s)", "", Plain<mnuShowSolution>},
    MenuRow{2, "mnuSolveGame", "Solve this ga&me", "Shift+Z", Plain<mnuSolveGame>},
    MenuRow{2, "mnuBreak7", SeparatorCaption, ""},
    MenuRow{2, "mnuHideSelectedCellsConditional", "Hide selected cells (co&nditional)", "Ctrl+H",
            PressKey<'H', CtrlKey>},
    MenuRow{2, "mnuHideSelectedCellsForce", "Hide selected cells (a&bsolute)", "Shift+H",
            PressKey<'H', ShiftKey>},
    MenuRow{2, "mnuExposeSelectedCells", "E&xpose selected cells", "Ctrl+X",
            Plain<mnuExposeSelectedCells>},
    MenuRow{2, "mnuMakeGiven", "Make selected cells &given", "Ctrl+G", PressKey<'G', CtrlKey>},
    MenuRow{2, "mnuAbout", "Abo&ut Kelvarine ...", "", Plain<mnuAbout>},
    MenuRow{1, "mnuTime", "&Time", ""},
    MenuRow{2, "mnuPauseTime", "&Pause", "F12", Plain<mnuPauseTime>},
    MenuRow{2, "mnuResetTime", "&Reset", "", Plain<mnuResetTime>},
};

} // namespace

const std::span<const MenuRow> MenuTable(Rows);

std::string WithNumber(std::string_view text, std::int32_t number)
{
    std::string filled;
    for (const char mark : text) {
        if (mark == '#') {
            filled += std::to_string(number);
        } else {
            filled += mark;
        }
    }
    return filled;
}

std::string MenuCaption(const MenuRow &row, std::int32_t number)
{
    if (row.Name == "mnuTime") {
        return TimeCaption;
    }
    if (row.Name == "mnuPauseTime") {
        return PauseCaption;
    }
    return WithNumber(row.Caption, number);
}

} // namespace kelvarine
