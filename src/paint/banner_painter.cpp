#include "paint/banner_painter.h"

#include "board/geometry.h"
#include "grid/colour.h"
#include "outside/board.h"
#include "paint/board_painter.h"
#include "paint/text_painter.h"
#include "paint/toolkit_colour.h"

#include <array>

namespace kelvarine {

namespace {

constexpr double BannerSize = 1.1; // times the size of a given
constexpr int FrameWidth = 10;
constexpr int ShadowOffset = 3;
constexpr int LineDistance = 14; // from a text down to the next

constexpr std::size_t Black = 0;
constexpr std::size_t Silver = 7;
constexpr std::size_t White = 15;

// A text of the banner on its white box.
struct Box {
    Face Letters;
    std::string Text;
    Rectangle Place;
};

// Box for a text, centred across a picture; its height on it is still open.
Box MakeBox(double points, std::string_view text, int pictureWidth)
{
    Box box{BoardFace(points), std::string(text), {}};
    box.Place.Width = TextWidth(box.Letters, text);
    box.Place.Height = box.Letters.Height;
    box.Place.X = (pictureWidth - box.Place.Width) / 2;
    return box;
}

void FillBox(QPainter &painter, const Rectangle &place, int margin, std::size_t colour)
{
    painter.fillRect(place.X - margin, place.Y - margin, place.Width + 2 * margin,
                     place.Height + 2 * margin, ToolkitColour(StandardColours[colour]));
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

// Draws the raised text in the middle of the picture and leaves where it stands.
Rectangle DrawRaisedBox(QPainter &painter, QSize picture, double points, std::string_view text)
{
    Box box = MakeBox(points, text, picture.width());
    box.Place.Y = (picture.height() - box.Place.Height) / 2;
    DrawEmptyBox(painter, box);
    WriteBoxText(painter, box, 0, Silver);
    WriteBoxText(painter, box, ShadowOffset, Black);
    return box.Place;
}

void ShowBanner(std::string_view text, std::span<const std::string> lines)
{
    QImage &board = VisibleBoardPicture();
    if (board.isNull()) {
        return;
    }
    QPainter painter(&board);
    PaintBanner(painter, board.deviceIndependentSize().toSize(), GivenFontSize * BannerSize, text,
                NineFontSize, lines);
    painter.end();
    ShowBoardPicture();
}

} // namespace

void PaintBanner(QPainter &painter, QSize picture, double points, std::string_view text,
                 double linePoints, std::span<const std::string> lines)
{
    Rectangle above = DrawRaisedBox(painter, picture, points, text);
    for (const std::string &line : lines) {
        Box box = MakeBox(linePoints, line, picture.width());
        box.Place.Y = above.Y + above.Height + LineDistance;
        DrawEmptyBox(painter, box);
        WriteBoxText(painter, box, 0, Black);
        above = box.Place;
    }
}

std::string GamesScreenedText(std::int32_t count)
{
    return " # of games screened: " + std::to_string(count) + " ";
}

void DrawBanner(std::string_view text)
{
    ShowBanner(text, {});
}

void DrawSearchBanner(std::int32_t count)
{
    const std::array lines{GamesScreenedText(count)};
    ShowBanner(SearchingText, lines);
}

} // namespace kelvarine
