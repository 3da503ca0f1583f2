#include "ui/controls/preset_pictures.h"

#include "board/geometry.h"
#include "board/look.h"
#include "configure/presets.h"
#include "game/clock.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "paint/board_painter.h"
#include "ui/controls/kept_painting.h"

#include <array>
#include <cmath>
#include <map>
#include <string_view>

namespace kelvarine {

namespace {

// The board is painted larger than it is shown, as its lines and letters are made for a window.
constexpr int Enlargement = 3;

// By rows: a capital letter is a given (A is 1), a digit a number of the player, "." a cell with
// pencilmarks.
constexpr std::string_view SamplePosition = "EC..G...."
                                            "F4.AIE..."
                                            ".IH...2F."
                                            "H..7F...C"
                                            "D..H.C..A"
                                            "G...B..5F"
                                            ".F9...BH."
                                            "..2DAI..E"
                                            "....H..GI";
constexpr Cell SelectedCell{4, 5};
constexpr Cell AlertCell{2, 2};
constexpr std::array HintCells{Cell{7, 1}, Cell{8, 2}};
constexpr std::array DomainCells{Cell{8, 1}, Cell{9, 1}, Cell{7, 2}, Cell{9, 2}};

void SetSamplePosition()
{
    Grid = {};
    for (const Cell cell : Cells) {
        const auto place = static_cast<std::size_t>((cell.Row - 1) * 9 + cell.Column - 1);
        const char mark = SamplePosition[place];
        if (mark >= 'A' && mark <= 'I') {
            WordAt(cell) = GivenBit | BitOf(mark - 'A' + 1);
        } else if (mark >= '1' && mark <= '9') {
            WordAt(cell) = BitOf(mark - '0');
        } else {
            WordAt(cell) = BitTable[1 + place % 3] | BitTable[4 + place % 5];
        }
    }
    WordAt(SelectedCell) |= SelectedBit;
    WordAt(AlertCell) |= AlertBit;
    for (const Cell cell : HintCells) {
        WordAt(cell) |= HintCellBit;
    }
    for (const Cell cell : DomainCells) {
        WordAt(cell) |= HintDomainBit;
    }
}

QImage PaintPreset(std::int32_t number, int side, double ratio)
{
    const KeptPainting kept;
    LoadPreset(number);
    SetSamplePosition();
    NumberFilter = CandidateMask;
    ChainColumns[0] = 0;
    StrongLinkMode = 0;
    WinDisplayRunning = False;
    PauseCaption.clear();
    PencilmarkLayout = 1;
    PencilmarkLines = False;
    MarginThickness = 0;
    const int large = side * Enlargement;
    LayoutBoard(large, large, 0);
    QImage board(BoardPlace.Width, BoardPlace.Height, QImage::Format_RGB32);
    board.fill(ColourTable[MarginColour]);
    PaintBoard(board);
    const int shown = static_cast<int>(std::lround(side * ratio));
    QImage picture = board.scaled(shown, shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

} // namespace

const QImage &PresetPicture(std::int32_t number, int side, double ratio)
{
    static std::map<std::int32_t, QImage> pictures; // picture cache
    QImage &picture = pictures[number];
    if (picture.devicePixelRatio() != ratio || picture.width() != std::lround(side * ratio)) {
        picture = PaintPreset(number, side, ratio);
    }
    return picture;
}

} // namespace kelvarine
