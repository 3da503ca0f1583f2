#include "print/page_layout.h"

#include "board/look.h"
#include "grid/digits.h"
#include "grid/rounding.h"
#include "print/print_settings.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace kelvarine {

double PrintableWidth;
double PrintableHeight;

namespace {

constexpr double LargestMeasure = 1000; // inches; what is typed beyond is cut

// A layout's side is a part of the page's width or of its height.
struct LayoutRow {
    double Part;
    bool OfWidth;
    int Columns;
    int Rows;
};

constexpr std::array<LayoutRow, GamesPerPage.size()> GameLayouts{{
    {0.7, true, 1, 1},
    {0.4, false, 1, 2},
    {0.28, false, 1, 3},
    {0.4, true, 2, 2},
    {0.35, true, 2, 3},
    {0.22, false, 2, 4},
    {0.22, false, 3, 4},
}};

constexpr LayoutRow SolutionLayout{0.15, false, 4, 6};

static_assert(SolutionLayout.Columns * SolutionLayout.Rows == SolutionsPerPage);

PageLayout LayOut(const LayoutRow &row, double width, double height)
{
    const double side = (row.OfWidth ? width : height) * row.Part;
    return {side, row.Columns, row.Rows, (width - row.Columns * side) / (row.Columns + 1),
            (height - row.Rows * side) / (row.Rows + 1)};
}

std::size_t LayoutIndex()
{
    const auto index = static_cast<std::size_t>(PrintGamesPerPage);
    return index < GamesPerPage.size() ? index : 0;
}

// The picture on a full page stands in its middle.
void FitToPage()
{
    PrintCentre = True;
    PrintWidth = PrintableWidth;
    PrintHeight = PrintableHeight;
    if (PrintAspect == False) {
        return;
    }
    const double proportion = BoardProportion();
    PrintHeight = PrintWidth * proportion;
    if (PrintHeight > PrintableHeight) {
        PrintHeight = PrintableHeight;
        PrintWidth = PrintHeight / proportion;
    }
}

// Side that border and lines leave to a cell of the picture; below 1 when they leave none.
int RoomForCell()
{
    constexpr int halfSide = 250;
    const double room = (halfSide - BorderThickness) * 2 - LinesAcross();
    return static_cast<int>(RoundHalfEven(room / 9));
}

// A number in units of its last decimal, rounded.
long long InLastDecimals(double value, long long scale)
{
    return std::llround(std::clamp(value, -1e9, 1e9) * static_cast<double>(scale));
}

// A measure with no more decimals than its box shows.
double AsShown(double inches)
{
    constexpr long long scale = 100;
    return static_cast<double>(InLastDecimals(inches, scale)) / scale;
}

// A number as text with so many decimals. The program's own digits and sign, whatever the
// system's are.
std::string Decimals(double value, int places, std::string_view sign)
{
    const auto scale = static_cast<long long>(std::pow(10, places));
    const long long scaled = InLastDecimals(value, scale);
    const long long size = std::abs(scaled);
    std::string part = std::to_string(size % scale);
    part.insert(0, static_cast<std::size_t>(places) - part.size(), '0');
    return (scaled < 0 ? "-" : "") + std::to_string(size / scale) + std::string(sign) + part;
}

// A number with one decimal and no nought in front of the sign.
std::string Tenths(double value, std::string_view sign)
{
    const std::string text = Decimals(value, 1, sign);
    return text.front() == '0' ? text.substr(1) : text;
}

// Length of the decimal sign that a text begins with, or 0.
std::size_t SignLength(std::string_view text, std::string_view sign)
{
    if (!sign.empty() && text.starts_with(sign)) {
        return sign.size();
    }
    return text.starts_with('.') || text.starts_with(',') ? 1 : 0;
}

} // namespace

// ---- The printable area --------------------------------------------------------------------

void SetPageDefaults()
{
    PrintableWidth = 7.5;
    PrintableHeight = 10;
}

void TakePrintableArea()
{
    const PrinterPage page = CurrentPrinterPage();
    PrintableWidth = page.Width / page.PixelsPerInchAcross;
    PrintableHeight = page.Height / page.PixelsPerInchDown;
    ArrangePicture();
}

// ---- Place and size of the current game ----------------------------------------------------

double BoardProportion()
{
    return static_cast<double>(BoardPlace.Height) / std::max(1, BoardPlace.Width);
}

void SetPrintWidth(double inches)
{
    PrintWidth = inches;
    if (PrintAspect != False) {
        PrintHeight = inches * BoardProportion();
    }
}

void SetPrintHeight(double inches)
{
    PrintHeight = inches;
    if (PrintAspect != False) {
        PrintWidth = inches / BoardProportion();
    }
}

void SetPrintFullPage(Flag on)
{
    PrintFullPage = on;
    ArrangePicture();
}

void ArrangePicture()
{
    if (PrintFullPage != False) {
        FitToPage();
    }
    if (PrintCentre != False) {
        PrintLeft = (PrintableWidth - PrintWidth) / 2;
        PrintTop = (PrintableHeight - PrintHeight) / 2;
    }
}

bool IsSizeFree()
{
    return PrintFullPage == False;
}

bool IsPlaceFree()
{
    return PrintCentre == False && PrintFullPage == False;
}

bool IsCentreFree()
{
    return PrintFullPage == False;
}

bool HasSize()
{
    return AsShown(PrintWidth) > 0 && AsShown(PrintHeight) > 0;
}

PagePlace CurrentGamePlace(double unitsAcross, double unitsDown)
{
    return {AsShown(PrintLeft) * unitsAcross, AsShown(PrintTop) * unitsDown,
            AsShown(PrintWidth) * unitsAcross, AsShown(PrintHeight) * unitsDown};
}

// ---- Batches -------------------------------------------------------------------------------

int GamesOnPage()
{
    return GamesPerPage[LayoutIndex()];
}

int GamesInBatch()
{
    return PrintPages * GamesOnPage();
}

PageLayout LayoutOfGames(std::size_t index, double pageWidth, double pageHeight)
{
    assert(pageWidth > 0 && pageHeight > 0);
    return LayOut(GameLayouts[std::min(index, GameLayouts.size() - 1)], pageWidth, pageHeight);
}

PageLayout LayoutOfSolutions(double pageWidth, double pageHeight)
{
    return LayOut(SolutionLayout, pageWidth, pageHeight);
}

PagePlace PlaceOf(const PageLayout &layout, int index)
{
    assert(index >= 0 && index < layout.Columns * layout.Rows);
    const int column = index % layout.Columns;
    const int row = index / layout.Columns;
    return {(layout.Side + layout.GapAcross) * column + layout.GapAcross,
            (layout.Side + layout.GapDown) * row + layout.GapDown, layout.Side, layout.Side};
}

// ---- The picture of a game -----------------------------------------------------------------

int PrintCellSide()
{
    return std::max(1, RoomForCell());
}

CellSizes PrintCellSizes()
{
    // Cells that have no room at all, though they are one pixel, get the smallest of fonts.
    return SizesOfCells(PrintCellSide(), PrintCellSide(), RoomForCell());
}

int PrintGridSide()
{
    return 9 * PrintCellSide() + LinesAcross() + 2 * BorderThickness;
}

// ---- Texts ---------------------------------------------------------------------------------

std::string MeasureText(double inches, std::string_view sign)
{
    std::string text = Decimals(inches, 2, sign);
    if (text.back() == '0') {
        text.pop_back();
    }
    return text;
}

double MeasureFrom(std::string_view text, std::string_view sign)
{
    double value = 0;
    double place = 0; // of the next decimal, 0 before the sign
    while (!text.empty()) {
        const std::size_t signLength = SignLength(text, sign);
        if (IsDigit(text.front())) {
            const int digit = text.front() - '0';
            value = place == 0 ? value * 10 + digit : value + digit * place;
            place /= 10;
        } else if (signLength != 0 && place == 0) {
            place = 0.1;
        } else {
            break;
        }
        text.remove_prefix(std::max<std::size_t>(1, signLength));
    }
    return std::min(value, LargestMeasure);
}

std::string PrintableAreaText(std::string_view sign)
{
    return "Printable area:  " + Tenths(PrintableWidth, sign) + " x " +
           Tenths(PrintableHeight, sign);
}

std::string BatchSizeText()
{
    const int games = GamesInBatch();
    return std::to_string(games) + (games == 1 ? " game" : " games");
}

} // namespace kelvarine
