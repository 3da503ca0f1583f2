// The two buttons of the toolbar that clear and keep marks, what holding a modifier shows, and
// where the buttons lie.
#include "board/look.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/keys.h"
#include "input/toolbar.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class ToolbarMarks : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }
};

void EnterHighlightMode()
{
    ToolPressed(13);
    ASSERT_EQ(ToolMode, 1);
}

std::size_t Selected()
{
    const std::string cells = CellsWith(SelectedBit);
    return cells.empty() ? 0 : (cells.size() + 1) / 3;
}

std::string NumberCaption()
{
    return ToolButtons[1].Caption;
}

// ---- Esc -----------------------------------------------------------------------------------

TEST_F(ToolbarMarks, EscapeClearsTheColoursSelectsAllAndShowsAll)
{
    NumberFilter = 0x8;
    Grid[2][2] |= 0xF000000 | HintCellBit;
    Grid[3][3] |= HintDomainBit | AlertBit;
    ForgetRecord();
    Seen.BoardFocuses = 0;
    ToolPressed(0);
    EXPECT_EQ(NumberFilter, 0x3FEU);
    EXPECT_EQ(CellsWith(CellColour | HintCellBit | HintDomainBit), "");
    EXPECT_EQ(Selected(), 81U);
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(CellsWith(AlertBit), "") << "the scan cleared it";
    EXPECT_EQ(Acts(), (Texts{"board: ", "board: "}));
    EXPECT_EQ(Seen.BoardFocuses, 1);
    EXPECT_NE(Level(1)[9][9] & SelectedBit, 0U) << "the state is taken after the selection";
}

TEST_F(ToolbarMarks, EscapeClearsNothingElse)
{
    for (const Cell cell : Cells) {
        WordAt(cell) = ~CellWord{0};
    }
    CountGivens();
    GameFilePath = "such.sdk"; // only a file can hold such words
    ToolPressed(14);           // no scan follows in this mode
    ToolPressed(0);
    for (const Cell cell : Cells) {
        EXPECT_EQ(WordAt(cell), 0xF09FFFFF);
    }
}

TEST_F(ToolbarMarks, EscapeWithoutColoursPushesNoStateButSelectsAll)
{
    NumberFilter = 0x8; // a change of the view alone is none
    Grid[3][3] |= AlertBit;
    ForgetRecord();
    Seen.BoardFocuses = 0;
    ToolPressed(0);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(NumberFilter, 0x3FEU);
    EXPECT_EQ(Selected(), 81U);
    EXPECT_EQ(CellsWith(AlertBit), "C3") << "no scan";
    EXPECT_EQ(Acts(), Texts{"board: "});
    EXPECT_EQ(Seen.BoardFocuses, 1);
}

TEST_F(ToolbarMarks, EscapeOfEveryHintMarkIsAChange)
{
    for (const CellWord mark : {HintCellBit, HintDomainBit, CellWord{0x1000000}}) {
        StartSavedGame(EasyGame);
        Grid[9][9] |= mark;
        ToolPressed(0);
        EXPECT_EQ(HistoryCount, 2) << mark;
    }
}

TEST_F(ToolbarMarks, EscapeScansForAlertsInEditModeOnly)
{
    for (const bool edit : {true, false}) {
        StartSavedGame(EasyGame);
        if (!edit) {
            ToolPressed(14);
        }
        Grid[3][3] |= AlertBit | HintCellBit;
        ToolPressed(0);
        EXPECT_EQ(CellsWith(AlertBit), edit ? "" : "C3");
    }
}

TEST_F(ToolbarMarks, EscapeLeavesModeAndSignAlone)
{
    ToolPressed(14);
    ToolPressed(11);
    ToolPressed(0);
    EXPECT_EQ(ToolMode, 20);
    EXPECT_EQ(ToolSign, 2);
    EXPECT_EQ(NumberFilter, 0x3FEU);
}

// ---- Freeze --------------------------------------------------------------------------------

TEST_F(ToolbarMarks, FreezeTurnsHintMarksIntoColours)
{
    EnterHighlightMode();
    Grid[1][1] |= HintCellBit | 0x3000000;
    Grid[2][1] |= HintDomainBit;
    Grid[3][1] |= HintCellBit | HintDomainBit | SelectedBit;
    Grid[4][1] |= 0x5000000;
    ForgetRecord();
    Seen.BoardFocuses = 0;
    ToolPressed(11);
    EXPECT_EQ(Grid[1][1] & CellColour, 0xA000000U);
    EXPECT_EQ(Grid[2][1] & CellColour, 0xB000000U);
    EXPECT_EQ(Grid[3][1] & CellColour, 0xA000000U) << "the hint cell goes first";
    EXPECT_EQ(Grid[4][1] & CellColour, 0x5000000U);
    EXPECT_EQ(CellsWith(HintCellBit), "A1 C1") << "the marks stay";
    EXPECT_EQ(CellsWith(SelectedBit), "C1");
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(Acts(), Texts{}) << "no repaint";
    EXPECT_EQ(Seen.BoardFocuses, 0);
    EXPECT_EQ(ToolSign, 0);
    EXPECT_EQ(ToolButtons[11].Caption, "Frz");
}

TEST_F(ToolbarMarks, FreezeWithoutAChangePushesNoState)
{
    EnterHighlightMode();
    ToolPressed(11);
    EXPECT_EQ(HistoryCount, 1);
    Grid[1][1] |= HintCellBit | 0xA000000;
    Grid[2][2] |= HintDomainBit | 0xB000000;
    ToolPressed(11);
    EXPECT_EQ(HistoryCount, 1);
}

// ---- Holding a modifier --------------------------------------------------------------------

TEST_F(ToolbarMarks, ShiftShowsMinusAndCtrlShowsPlusWhileHeld)
{
    for (const std::int32_t before : {0, 1, 2}) {
        ToolSign = before;
        KeyDown(16, 1);
        EXPECT_EQ(ToolSign, 1);
        EXPECT_EQ(NumberCaption(), "- 1");
        EXPECT_EQ(ToolButtons[1].Tip, "Remove #1 from selected cells");
        KeyUp(16);
        EXPECT_EQ(ToolSign, 0);
        EXPECT_EQ(NumberCaption(), "1");
        ToolSign = before;
        KeyDown(17, 2);
        EXPECT_EQ(ToolSign, 2);
        EXPECT_EQ(NumberCaption(), "+ 1");
        KeyUp(17);
        EXPECT_EQ(ToolSign, 0);
        EXPECT_EQ(NumberCaption(), "1");
    }
}

TEST_F(ToolbarMarks, ShiftChangesNothingInHighlightMode)
{
    EnterHighlightMode();
    Grid[1][1] |= HintCellBit;
    const std::array<ToolButton, ToolButtonCount> before = ToolButtons;
    KeyDown(16, 1);
    KeyDown(17, 2);
    EXPECT_EQ(ToolSign, 0);
    KeyUp(16);
    EXPECT_EQ(ToolSign, 1) << "written all the same";
    EXPECT_EQ(CellsWith(CellColour), "") << "nothing is frozen";
    for (std::size_t index = 0; index < ToolButtonCount; ++index) {
        EXPECT_EQ(ToolButtons[index].Caption, before[index].Caption);
        EXPECT_EQ(ToolButtons[index].Tip, before[index].Tip);
    }
}

TEST_F(ToolbarMarks, ModifiersLeaveTheCaptionsOfDomainsAlone)
{
    ToolPressed(12);
    ToolPressed(12);
    ASSERT_EQ(ToolMode, 11);
    KeyDown(16, 1);
    EXPECT_EQ(NumberCaption(), "1");
    EXPECT_EQ(ToolSign, 2) << "the sign keeps what was written";
    KeyDown(17, 2);
    EXPECT_EQ(NumberCaption(), "1");
    EXPECT_EQ(ToolSign, 3);
    ToolPressed(7); // nothing reads it
    EXPECT_EQ(ToolButtons[7].Tip, "Select 7's + domains");
    ToolPressed(12);
    EXPECT_EQ(ToolSign, 0);
}

TEST_F(ToolbarMarks, OtherKeysComingUpShowNothing)
{
    ToolPressed(11);
    KeyUp('5');
    KeyUp(18);
    KeyUp(0);
    EXPECT_EQ(ToolSign, 2);
}

// ---- Tips ----------------------------------------------------------------------------------

TEST_F(ToolbarMarks, TipsCanBeSwitchedOff)
{
    ToolTipsVisible = False;
    UpdateToolTips();
    for (const ToolButton &button : ToolButtons) {
        EXPECT_EQ(button.Tip, "");
    }
    ToolPressed(11);
    EXPECT_EQ(ToolButtons[1].Tip, "");
    ToolTipsVisible = True;
    UpdateToolTips();
    EXPECT_EQ(ToolButtons[0].Tip, "View all, select all, & clear all highlights");
    EXPECT_EQ(ToolButtons[1].Tip, "Add #1 to selected cells");
    EXPECT_EQ(ToolButtons[11].Tip, "Toggle buttons to set, add, or remove");
    EXPECT_EQ(ToolButtons[12].Tip, "");
}

// ---- Places --------------------------------------------------------------------------------

struct ToolGeometry {
    int Width;
    int Button;
    int Gap;
    int Offset;
};

TEST_F(ToolbarMarks, ButtonsLieSideBySide)
{
    constexpr std::array<ToolGeometry, 12> rows{{{1, 40, 0, -239},
                                                 {300, 40, 0, -90},
                                                 {479, 40, 0, 0},
                                                 {480, 40, 0, 0},
                                                 {491, 40, 0, 5},
                                                 {492, 40, 1, 0},
                                                 {540, 40, 5, 2},
                                                 {552, 40, 6, 3},
                                                 {553, 40, 6, 3},
                                                 {564, 41, 6, 3},
                                                 {760, 57, 6, 5},
                                                 {1600, 127, 6, 5}}};
    for (const ToolGeometry &row : rows) {
        LayoutToolbar(row.Width);
        for (int k = 0; k <= 11; ++k) {
            EXPECT_EQ(ToolButtons[static_cast<std::size_t>(k)].Place,
                      (Rectangle{row.Offset + k * (row.Button + row.Gap), 3, row.Button, 26}))
                << row.Width << ' ' << k;
        }
        for (int k = 0; k <= 2; ++k) {
            EXPECT_EQ(ToolButtons[static_cast<std::size_t>(12 + k)].Place,
                      (Rectangle{row.Offset + 4 * k * (row.Button + row.Gap), 32,
                                 4 * row.Button + 3 * row.Gap, 18}))
                << row.Width << ' ' << k;
        }
    }
}

// Left ends of the first, the last and the three wide buttons.
std::vector<int> LeftEnds()
{
    std::vector<int> ends;
    for (const std::size_t index : {0U, 11U, 12U, 13U, 14U}) {
        ends.push_back(ToolButtons[index].Place.X);
    }
    return ends;
}

TEST_F(ToolbarMarks, RowSlidesAtBothEnds)
{
    LayoutToolbar(300);
    const std::vector<int> middle = LeftEnds();
    ASSERT_EQ(middle, (std::vector<int>{-90, 350, -90, 70, 230}));
    for (const int px : {10, 150, 290}) {
        SlideToolbar(px, 300);
        EXPECT_EQ(LeftEnds(), middle) << px;
    }
    SlideToolbar(291, 300);
    const std::vector<int> atRight{-181, 259, -181, -21, 139};
    EXPECT_EQ(LeftEnds(), atRight) << "the last button ends one pixel before the toolbar does";
    SlideToolbar(299, 300);
    EXPECT_EQ(LeftEnds(), atRight);
    SlideToolbar(9, 300);
    const std::vector<int> atLeft{1, 441, 1, 161, 321};
    EXPECT_EQ(LeftEnds(), atLeft);
    SlideToolbar(-5, 300);
    EXPECT_EQ(LeftEnds(), atLeft);
}

TEST_F(ToolbarMarks, SlidOnceShownOnce)
{
    LayoutToolbar(300);
    Seen.ToolbarUpdates = 0;
    SlideToolbar(150, 300);
    EXPECT_EQ(Seen.ToolbarUpdates, 0);
    SlideToolbar(0, 300);
    EXPECT_EQ(Seen.ToolbarUpdates, 1);
    SlideToolbar(0, 300);
    EXPECT_EQ(Seen.ToolbarUpdates, 1);
}

TEST_F(ToolbarMarks, RowThatFitsStaysWhereItIs)
{
    LayoutToolbar(560);
    const std::vector<int> before = LeftEnds();
    for (int px = -20; px <= 600; ++px) {
        SlideToolbar(px, 560);
    }
    EXPECT_EQ(LeftEnds(), before);
}

TEST_F(ToolbarMarks, RowThatEndsWithTheToolbarSlidesToItsFirstPixelOnly)
{
    LayoutToolbar(480);
    SlideToolbar(479, 480);
    EXPECT_EQ(ToolButtons[0].Place.X, 0) << "the last button does not lie beyond the end";
    SlideToolbar(0, 480);
    EXPECT_EQ(ToolButtons[0].Place.X, 1);
    SlideToolbar(479, 480);
    EXPECT_EQ(ToolButtons[0].Place.X, -1) << "now it did, by one pixel";
}

TEST_F(ToolbarMarks, NarrowestToolbarSlidesByItsRightEnd)
{
    LayoutToolbar(1);
    SlideToolbar(0, 1);
    EXPECT_EQ(ToolButtons[11].Place.X + 40, 0);
}

} // namespace
} // namespace kelvarine::testing
