#include "board/board.h"
#include "board/board_painter.h"
#include "board/geometry.h"
#include "board/text_painter.h"
#include "game/win_display.h"

#include <string>

namespace kelvarine {

namespace {

constexpr double BannerSize = 1.1; // times the size of a given
constexpr int FrameWidth = 10;
constexpr int ShadowOffset = 3;
constexpr int CountDistance = 14; // from the line of the first text down to that of the count

constexpr std::size_t Black = 0;
constexpr std::size_t Silver = 7;
constexpr std::size_t White = 15;

// A text of the banner on its white box.
struct Box {
    Face Letters;
    std::string Text;
    Rectangle Place;
};

// Box for a text, centred across the board; its height on the board is still open.
Box MakeBox(double points, std::string_view text, int boardWidth)
{
    Box box{BoardFace(points), std::string(text), {}};
    box.Place.Width = TextWidth(box.Letters, text);
    box.Place.Height = box.Letters.Height;
    box.Place.X = (boardWidth - box.Place.Width) / 2;
    return box;
}

void FillBox(QPainter &painter, const Rectangle &place, int margin, std::size_t colour)
{
    painter.fillRect(place.X - margin, place.Y - margin, place.Width + 2 * margin,
                     place.Height + 2 * margin, QColor::fromRgb(StandardColours[colour]));
}

void WriteBoxText(QPainter &painter, const Box &box, int offset, std::size_t colour)
{
    WriteText(painter, box.Letters, {box.Place.X - offset, box.Place.Y - offset}, box.Text,
              StandardColours[colour]);
}

void DrawEmptyBox(QPainter &painter, const Box &box)
{
    FillBox(painter, box.Place, FrameWidth, Black);
    FillBox(painter, box.Place, 0, White);
}

// Draws the raised text in the middle of the board and leaves where it stands.
Rectangle DrawRaisedBox(QPainter &painter, std::string_view text)
{
    const QSizeF board = VisibleBoardPicture().deviceIndependentSize();
    Box box = MakeBox(GivenFontSize * BannerSize, text, qRound(board.width()));
    box.Place.Y = (qRound(board.height()) - box.Place.Height) / 2;
    DrawEmptyBox(painter, box);
    WriteBoxText(painter, box, 0, Silver);
    WriteBoxText(painter, box, ShadowOffset, Black);
    return box.Place;
}

void DrawCount(QPainter &painter, std::int32_t count, const Rectangle &above)
{
    const QSizeF board = VisibleBoardPicture().deviceIndependentSize();
    Box box = MakeBox(NineFontSize, " # of games screened: " + std::to_string(count) + " ",
                      qRound(board.width()));
    box.Place.Y = above.Y + above.Height + CountDistance;
    DrawEmptyBox(painter, box);
    WriteBoxText(painter, box, 0, Black);
}

} // namespace

void DrawBanner(std::string_view text)
{
    if (VisibleBoardPicture().isNull()) {
        return;
    }
    QPainter painter(&VisibleBoardPicture());
    DrawRaisedBox(painter, text);
    painter.end();
    ShowBoardPicture();
}

void DrawSearchBanner(std::int32_t count)
{
    if (VisibleBoardPicture().isNull()) {
        return;
    }
    QPainter painter(&VisibleBoardPicture());
    const Rectangle raised = DrawRaisedBox(painter, " Searching ");
    DrawCount(painter, count, raised);
    painter.end();
    ShowBoardPicture();
}

} // namespace kelvarine
