#include "board/look.h"
#include "game/alert_scan.h"
#include "game/lifecycle.h"
#include "game/win_display.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/number_keys.h"
#include "input/toolbar.h"
#include "logic/driver.h"
#include "outside/board.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/scenario.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr CellWord AllInView = 0x3FE;
constexpr CellWord OnlyThree = 0x8;
constexpr Colour Grey = 0xC0C0C0;
constexpr std::array<std::int32_t, 7> Modes{0, 1, 10, 11, 12, 13, 20};

class Toolbar : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// Presses mode buttons until the toolbar is in a mode.
void EnterMode(std::int32_t mode)
{
    std::int32_t button = 13;
    if (mode >= 10) {
        button = mode == 20 ? 14 : 12;
    }
    for (int presses = 0; presses < 5 && ToolMode != mode; ++presses) {
        ToolPressed(button);
    }
    ASSERT_EQ(ToolMode, mode);
}

std::string Caption(std::size_t index)
{
    return ToolButtons[index].Caption;
}

std::string Tip(std::size_t index)
{
    return ToolButtons[index].Tip;
}

// The captions of all buttons, in one line.
std::string Captions()
{
    std::string line;
    for (const ToolButton &button : ToolButtons) {
        line += (line.empty() ? "" : "|") + button.Caption;
    }
    return line;
}

std::vector<Colour> Backgrounds(std::size_t first, std::size_t last)
{
    std::vector<Colour> colours;
    for (std::size_t index = first; index <= last; ++index) {
        colours.push_back(ToolButtons[index].Background);
    }
    return colours;
}

std::vector<Colour> Ten(Colour colour)
{
    std::vector<Colour> colours(10, colour);
    return colours;
}

void SelectAll()
{
    for (const Cell cell : Cells) {
        WordAt(cell) |= SelectedBit;
    }
}

// ---- At the start --------------------------------------------------------------------------

TEST_F(Toolbar, StartsReadyToEdit)
{
    EXPECT_EQ(Captions(), "Esc|1|2|3|4|5|6|7|8|9|All|+/-|Select singles|Edit|View");
    EXPECT_EQ(ToolMode, 0);
    EXPECT_EQ(ToolSign, 0);
    EXPECT_EQ(Backgrounds(1, 10), Ten(0x32A3FF));
    EXPECT_EQ(Backgrounds(12, 14), (std::vector<Colour>{Grey, 0x32A3FF, Grey}));
    EXPECT_EQ(Tip(5), "Set selected cells to #5");
    EXPECT_NE(ToolbarVisible, False);
    EXPECT_NE(ToolTipsVisible, False);
}

// ---- Modes ---------------------------------------------------------------------------------

struct ModeFace {
    std::int32_t Mode;
    std::size_t Button;
    std::string Captions;
    Colour Background;
};

TEST_F(Toolbar, EveryModeHasItsCaptionsAndColours)
{
    const std::array<ModeFace, 7> faces{{
        {0, 13, "Esc|1|2|3|4|5|6|7|8|9|All|+/-|Select singles|Edit|View", 0x32A3FF},
        {1, 13, "Esc||||||||||Clr|Frz|Select singles|Highlight|View", 0x00FFFF},
        {10, 12, "Esc|1|2|3|4|5|6|7|8|9|All|+/-|Select singles|Edit|View", 0x00FF00},
        {11, 12, "Esc|1|2|3|4|5|6|7|8|9|All|+/-|Select singles + domain|Edit|View", 0xFFFF00},
        {12, 12, "Esc|1|2|3|4|5|6|7|8|9|0|+/-|Select # of digits|Edit|View", 0xC0C000},
        {13, 12, "Esc|1|2|3|4|5|6|7|8|9|All|+/-|Select cells containing a #|Edit|View", 0xFFAD5A},
        {20, 14, "Esc|1|2|3|4|5|6|7|8|9|All|+/-|Select singles|Edit|View", 0xFF4041},
    }};
    for (const ModeFace &face : faces) {
        Restart();
        if (face.Mode == 0) {
            EnterMode(20); // the start is told above; this is the way back
        }
        EnterMode(face.Mode);
        EXPECT_EQ(Captions(), face.Captions) << face.Mode;
        for (std::size_t button = 12; button <= 14; ++button) {
            EXPECT_EQ(ToolButtons[button].Background,
                      button == face.Button ? face.Background : Grey)
                << face.Mode;
        }
        if (face.Mode != 1) {
            EXPECT_EQ(Backgrounds(1, 10), Ten(face.Background)) << face.Mode;
        }
    }
}

TEST_F(Toolbar, HighlightModeShowsTheHighlightColours)
{
    for (std::size_t k = 1; k <= 10; ++k) {
        HighlightColours[k] = static_cast<Colour>(0x010203 * k);
    }
    EnterMode(1);
    for (std::size_t k = 1; k <= 10; ++k) {
        EXPECT_EQ(ToolButtons[k].Background, 0x010203 * k);
    }
}

TEST_F(Toolbar, ButtonsKeepTheCaptionOfTheModeThatTheyGoBackTo)
{
    EnterMode(1);
    EnterMode(13);
    EnterMode(20);
    EXPECT_EQ(Caption(12), "Select cells containing a #");
    EXPECT_EQ(Caption(13), "Highlight");
    EXPECT_EQ(Caption(11), "+/-");
    EXPECT_EQ(Caption(1), "1");
}

TEST_F(Toolbar, SelectButtonGoesRoundItsModes)
{
    std::vector<std::int32_t> seen;
    for (int press = 0; press < 6; ++press) {
        ToolPressed(12);
        seen.push_back(ToolMode);
    }
    EXPECT_EQ(seen, (std::vector<std::int32_t>{10, 11, 12, 13, 10, 11}));
}

TEST_F(Toolbar, EditButtonGoesRoundItsModes)
{
    std::vector<std::int32_t> seen;
    for (int press = 0; press < 3; ++press) {
        ToolPressed(13);
        seen.push_back(ToolMode);
    }
    EXPECT_EQ(seen, (std::vector<std::int32_t>{1, 0, 1}));
}

TEST_F(Toolbar, FirstPressGoesBackToTheLastModeOfTheButton)
{
    EnterMode(12);
    EnterMode(20);
    ToolPressed(12);
    EXPECT_EQ(ToolMode, 12) << "not the one after it";
    ToolPressed(12);
    EXPECT_EQ(ToolMode, 13);
    ToolPressed(13);
    EXPECT_EQ(ToolMode, 0);
    ToolPressed(13);
    ToolPressed(14);
    ToolPressed(14);
    EXPECT_EQ(ToolMode, 20);
    ToolPressed(13);
    EXPECT_EQ(ToolMode, 1);
    ToolPressed(12);
    EXPECT_EQ(ToolMode, 13);
}

TEST_F(Toolbar, ChangeOfModeDropsTheSignAndFocusesTheBoard)
{
    for (const std::int32_t button : {12, 13, 14}) {
        Restart();
        ToolPressed(11);
        ASSERT_EQ(ToolSign, 2);
        ForgetRecord();
        Seen.BoardFocuses = 0;
        Seen.ToolbarUpdates = 0;
        ToolPressed(button);
        EXPECT_EQ(ToolSign, 0) << button;
        EXPECT_EQ(Seen.BoardFocuses, 1);
        EXPECT_GE(Seen.ToolbarUpdates, 1);
        EXPECT_EQ(Seen.BoardPaints, 0);
        EXPECT_EQ(HistoryCount, 0);
    }
}

// ---- Sign ----------------------------------------------------------------------------------

TEST_F(Toolbar, SignGoesFromPlainToPlusToMinusToPlain)
{
    struct SignedCaptions {
        std::int32_t Mode;
        std::string PlusAll;
        std::string MinusAll;
        std::string All;
    };
    const std::array<SignedCaptions, 5> rows{{{0, "+ All", "- All", "All"},
                                              {10, "+ All", "- All", "All"},
                                              {12, "+ 0", "- 0", "0"},
                                              {13, "+ All", "- All", "All"},
                                              {20, "All", "All", "All"}}};
    const std::string plus = "+ 1|+ 2|+ 3|+ 4|+ 5|+ 6|+ 7|+ 8|+ 9|";
    const std::string minus = "- 1|- 2|- 3|- 4|- 5|- 6|- 7|- 8|- 9|";
    const std::string plain = "1|2|3|4|5|6|7|8|9|";
    for (const SignedCaptions &row : rows) {
        EnterMode(row.Mode);
        ToolPressed(11);
        EXPECT_EQ(ToolSign, 2);
        EXPECT_TRUE(Captions().starts_with("Esc|" + plus + row.PlusAll + "|+/-|")) << Captions();
        ToolPressed(11);
        EXPECT_EQ(ToolSign, 1);
        EXPECT_TRUE(Captions().starts_with("Esc|" + minus + row.MinusAll + "|+/-|")) << Captions();
        ToolPressed(11);
        EXPECT_EQ(ToolSign, 0);
        EXPECT_TRUE(Captions().starts_with("Esc|" + plain + row.All + "|+/-|")) << Captions();
    }
}

TEST_F(Toolbar, SignBringsItsTipsAndFocusesTheBoard)
{
    Seen.BoardFocuses = 0;
    ToolPressed(11);
    EXPECT_EQ(Tip(4), "Add #4 to selected cells");
    EXPECT_EQ(Tip(10), "Add all numbers to selected cells");
    EXPECT_EQ(Seen.BoardFocuses, 1);
    EXPECT_GE(Seen.ToolbarUpdates, 1);
}

TEST_F(Toolbar, SignDoesNothingAtAllForDomains)
{
    EnterMode(11);
    Seen.BoardFocuses = 0;
    Seen.ToolbarUpdates = 0;
    const std::string before = ProgramState() + Captions();
    ToolPressed(11);
    EXPECT_EQ(ProgramState() + Captions(), before);
    EXPECT_EQ(Seen.BoardFocuses, 0) << "not even the focus moves";
    EXPECT_EQ(ToolSign, 0);
}

// ---- Numbers -------------------------------------------------------------------------------

// What a number button does, told anew.
void PressAsTold(std::int32_t number)
{
    Flag update = False;
    ProcessNumKey(number, ToolMode, ToolSign, update);
    if (update == False) {
        return;
    }
    if (ToolMode == 0) {
        if (IsGridSolved() != False) {
            UpdateStatistics();
        } else {
            ScanAlerts(1);
        }
    }
    DrawBoard();
}

// A position with solved and open cells, and alerts to be found.
void SetToolScenario(CellWord filter, std::int32_t mode, std::int32_t sign)
{
    SetScenario(filter);
    Grid[1][3] = BitTable[1] | SelectedBit;
    AlertMask = 0x6;
    ToolMode = mode;
    ToolSign = sign;
}

TEST_F(Toolbar, NumberButtonsPassModeAndSignOn)
{
    for (const CellWord filter : {AllInView, OnlyThree}) {
        for (const std::int32_t mode : Modes) {
            for (std::int32_t sign = 0; sign <= 2; ++sign) {
                for (std::int32_t button = 1; button <= 10; ++button) {
                    SetToolScenario(filter, mode, sign);
                    PressAsTold(button == 10 ? 0 : button);
                    const std::string told = ProgramState();
                    SetToolScenario(filter, mode, sign);
                    Seen.BoardFocuses = 0;
                    ToolPressed(button);
                    ASSERT_EQ(ProgramState(), told) << mode << ' ' << sign << ' ' << button;
                    ASSERT_EQ(Seen.BoardFocuses, 1);
                }
            }
        }
    }
}

TEST_F(Toolbar, HighlightButtonsColourAndDeselect)
{
    StartSavedGame(EasyGame);
    EnterMode(1);
    Grid[1][1] |= SelectedBit; // a given
    Grid[3][1] |= SelectedBit;
    ForgetRecord();
    ToolPressed(4);
    EXPECT_EQ((Grid[1][1] & CellColour) >> ColourShift, 4U);
    EXPECT_EQ((Grid[3][1] & CellColour) >> ColourShift, 4U);
    EXPECT_EQ(CellsWith(SelectedBit), "");
    EXPECT_EQ(HistoryCount, 2);
    Grid[3][1] |= SelectedBit;
    ToolPressed(10);
    EXPECT_EQ(CellsWith(CellColour), "A1");
    EXPECT_EQ(CellsWith(SelectedBit), "");
}

TEST_F(Toolbar, AllMeansEmptyCellsWhereDigitsAreCounted)
{
    StartSavedGame(EasyGame);
    EnterMode(12);
    Grid[3][1] &= ~CandidateMask;
    ToolPressed(10);
    EXPECT_EQ(CellsWith(SelectedBit), "C1");
    ToolPressed(9);
    EXPECT_EQ(CellsWith(SelectedBit).size(), 50 * 3U - 1) << "51 open cells, one of them empty";
}

// A game that lacks only the number 5 of the selected cell A1.
void SetNearlyWon()
{
    SetGivens(EasySolution);
    Grid[1][1] = CandidateMask;
    StartGame(0);
    Grid[1][1] |= SelectedBit;
    ForgetRecord();
}

TEST_F(Toolbar, LastNumberStartsTheWinDisplay)
{
    SetNearlyWon();
    ToolPressed(5);
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_EQ(StatsCounted, True);
    EXPECT_EQ(HistoryCount, 2);
}

TEST_F(Toolbar, OnlyEditModeWins)
{
    SetGivens(EasySolution);
    StartGame(0);
    StopWinDisplay();
    for (const std::int32_t mode : Modes) {
        EnterMode(mode);
        for (std::int32_t button = 1; button <= 10; ++button) {
            SelectAll();
            ToolPressed(button);
            EXPECT_EQ(WinDisplayRunning, False) << mode << ' ' << button;
        }
    }
}

TEST_F(Toolbar, PressEndsTheWinDisplayAndThenActs)
{
    SetNearlyWon();
    StartWinDisplay();
    ToolPressed(14);
    EXPECT_EQ(WinDisplayRunning, False);
    EXPECT_EQ(Acts(), (Texts{"stop sound: ", "board: "}));
    EXPECT_EQ(ToolMode, 20);
}

TEST_F(Toolbar, PressDuringASearchOnlyAsks)
{
    for (std::int32_t button = 0; button <= 14; ++button) {
        for (const std::int32_t kind : {0, 1, 4}) {
            SetScenario(AllInView);
            SearchActive = True;
            SearchKind = kind;
            const GridTable before = Grid;
            ToolPressed(button);
            EXPECT_EQ(Seen.Questions,
                      kind == 1 ? Texts{"Would you like to stop searching?"} : Texts{});
            EXPECT_EQ(Grid, before);
            EXPECT_EQ(ToolMode, 0);
            EXPECT_EQ(ToolSign, 0);
        }
    }
}

TEST_F(Toolbar, FingerMeansTheNearestButton)
{
    LayoutToolbar(758);
    for (std::int32_t index = EscapeButton; index <= ViewButton; ++index) {
        const Rectangle &place = ToolButtons[static_cast<std::size_t>(index)].Place;
        for (const int x : {place.X, place.X + place.Width - 1}) {
            for (const int y : {place.Y, place.Y + place.Height - 1}) {
                EXPECT_EQ(ToolUnderFinger(x, y), index);
            }
        }
    }
    const Rectangle &one = ToolButtons[1].Place;
    EXPECT_EQ(ToolUnderFinger(one.X - 1, 10), 1);
    EXPECT_EQ(ToolUnderFinger(one.X - 5, 10), 0);
    EXPECT_EQ(ToolUnderFinger(0, 10), std::nullopt) << "beside the row";
    EXPECT_EQ(ToolUnderFinger(757, 40), std::nullopt);
    EXPECT_EQ(ToolUnderFinger(one.X, -1), std::nullopt);
    EXPECT_EQ(ToolUnderFinger(one.X, ToolbarHeight), std::nullopt);
}

TEST_F(Toolbar, NoButtonIsTooLowForAFinger)
{
    constexpr int enough = 24;
    for (const int width : {760, 500, 300}) {
        LayoutToolbar(width);
        for (std::int32_t index = EscapeButton; index <= ViewButton; ++index) {
            const Rectangle &place = ToolButtons[static_cast<std::size_t>(index)].Place;
            int hits = 0;
            for (int y = 0; y < ToolbarHeight; ++y) {
                hits += ToolUnderFinger(place.X + place.Width / 2, y) == index ? 1 : 0;
            }
            EXPECT_GE(hits, enough) << index;
            EXPECT_GE(place.Width, enough) << index;
        }
    }
}

} // namespace
} // namespace kelvarine::testing
