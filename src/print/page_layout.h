// Where pictures stand on a page and how large they are: the current game by the player's
// measures, batches and their solutions by a table, as real numbers that are rounded only when
// something is drawn. Also the size of the picture of a game, and measures as texts.
#pragma once

#include "board/geometry.h"
#include "outside/printer.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

// ---- The printable area --------------------------------------------------------------------

extern double PrintableWidth; // inches, of the printer chosen latest
extern double PrintableHeight;

// Puts the area to that of a letter with half an inch of margin, until a printer is asked.
void SetPageDefaults();

// Takes the printable area from the printer and brings the current game's place in line with it.
void TakePrintableArea();

// ---- Place and size of the current game, in inches -----------------------------------------

// Height over width of the board.
double BoardProportion();

// A new width or height, from 0; with PrintAspect the other one follows.
void SetPrintWidth(double inches);
void SetPrintHeight(double inches);

// Switches the whole page on or off; the picture on the whole page stands in its middle.
void SetPrintFullPage(Flag on);

// Works out what the settings leave open: the size on a full page, the place in the middle.
void ArrangePicture();

// Whether the player may set these by hand.
bool IsSizeFree();
bool IsPlaceFree();
bool IsCentreFree();

// True when there is a size to be printed, with the decimals that the boxes show.
bool HasSize();

// Place of the current game at so many units, such as pixels, to the inch; its measures are those
// that the boxes show.
PagePlace CurrentGamePlace(double unitsAcross, double unitsDown);

// ---- Batches -------------------------------------------------------------------------------

// Square pictures of a side, in columns and rows with the same gap between them and to the edges.
struct PageLayout {
    double Side = 0;
    int Columns = 1;
    int Rows = 1;
    double GapAcross = 0;
    double GapDown = 0;
};

inline constexpr std::array<int, 7> GamesPerPage{1, 2, 3, 4, 6, 8, 12};
inline constexpr int SolutionsPerPage = 24;

// Games on a page by PrintGamesPerPage, whatever that holds.
int GamesOnPage();

// Games of the whole batch.
int GamesInBatch();

// Layout of the games for an index 0..6, and of the solutions, on a page of a size.
PageLayout LayoutOfGames(std::size_t index, double pageWidth, double pageHeight);
PageLayout LayoutOfSolutions(double pageWidth, double pageHeight);

// Place of the picture of an index from 0 up, row by row.
PagePlace PlaceOf(const PageLayout &layout, int index);

// ---- The picture of a game -----------------------------------------------------------------

// Sides of a cell and of the whole picture in its own pixels, of which it has about 500 whatever
// the size of the board is. At least 1 for a cell.
int PrintCellSide();
int PrintGridSide();

// Sizes that its cells and numbers are drawn with.
CellSizes PrintCellSizes();

// ---- Texts ---------------------------------------------------------------------------------

// A measure with one or two decimals behind the decimal sign.
std::string MeasureText(double inches, std::string_view sign);

// The number that a text begins with, its sign a point, a comma or the given one; 0 for none.
double MeasureFrom(std::string_view text, std::string_view sign);

// "Printable area:  8.0 x 10.5"
std::string PrintableAreaText(std::string_view sign);

// "1 game" or "12 games".
std::string BatchSizeText();

} // namespace kelvarine
