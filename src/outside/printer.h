// The printer, page by page.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

// A page's printable area in the printer's pixels, and how many of them make an inch; all above 0.
struct PrinterPage {
    double Width = 0;
    double Height = 0;
    double PixelsPerInchAcross = 0;
    double PixelsPerInchDown = 0;
};

// A place on a page, from the corner of its printable area. In the printer's pixels, of which
// there are only whole ones: the four numbers are rounded when something is printed there.
struct PagePlace {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;

    friend constexpr bool operator==(const PagePlace &, const PagePlace &) = default;
};

// What can be printed as a picture: the board as it stands, without the marks that do not belong
// on paper, or Grid as a game of its own.
enum class PrintedPicture : std::uint8_t { Board, Game };

// Page of the printer chosen latest, or of the usual one. Without a printer it is a page of a PDF
// file, of the size that is usual where the player lives.
PrinterPage CurrentPrinterPage();

// Lets the player choose a printer or a file. False when the player would rather not print.
bool ChoosePrinter();

// Print on the page in hand; the first of these calls begins the document. The corner of a text is
// the top left one. False when that failed, and nothing more comes of the document.
bool PrintPicture(PrintedPicture picture, const PagePlace &place);
bool PrintText(double left, double top, std::string_view text);

// Width in the printer's pixels that a text takes.
double PrintedTextWidth(std::string_view text);

// Begins a new page. False when that failed.
bool NewPage();

// Ends the document: what is printed from now on is another one's. One on which nothing was printed
// is none.
void EndDocument();

// Hands over the document that was ended last; about a file the player may be asked. Returns the
// system's own words when that or anything before failed, and nothing when all went well.
std::string HandOverDocument();

// The sign between whole numbers and decimals where the player lives.
std::string DecimalSign();

} // namespace kelvarine
