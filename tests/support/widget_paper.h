// Pages that the program printed into a PDF file, turned into pictures, and the digits on them.
#pragma once

#include "grid/grid.h"
#include "outside/printer.h"

#include <QImage>

#include <functional>
#include <string>
#include <vector>

namespace kelvarine::testing {

inline constexpr double PixelsPerInch = 150;
inline constexpr double HalfMillimetre = 0.5 / 25.4 * PixelsPerInch;

// Runs an action that opens the print dialog, which is accepted with this file as its target.
void PrintTo(const std::string &path, const std::function<void()> &action);

// The pages of a PDF file at PixelsPerInch, in order.
std::vector<QImage> PagesOf(const std::string &path);

// A place on the printable area as the rectangle of a page's picture that it covers.
QRectF OnPage(const PagePlace &inches);

// Smallest rectangle round everything in a part of a page that is not white.
QRect InkIn(const QImage &page, const QRectF &part);

// The digits of a printed game in the order of NumbersOf, "." for an empty cell, read by comparing
// each cell with all that it could show. Givens has a given wherever the game has one.
std::string DigitsOn(const QImage &page, const QRectF &place, const GridTable &givens);

} // namespace kelvarine::testing
