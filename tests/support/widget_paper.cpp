#include "support/widget_paper.h"

#include "board/look.h"
#include "input/keys.h"
#include "paint/print_painter.h"
#include "print/page_layout.h"
#include "support/widget_modal.h"
#include "support/widget_program.h"
#include "ui/outside/printer_qt.h"

#include <QDir>
#include <QPrintDialog>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

namespace kelvarine::testing {

namespace {

// Part of a page round a place, in greys.
QImage GreyPart(const QImage &page, const QRect &part)
{
    return page.copy(part).convertToFormat(QImage::Format_Grayscale8);
}

// The inner part of a cell, where fill and digit are, but no frame, from the corner of part.
QRect CellPart(const QRectF &place, const QRect &part, Cell cell)
{
    const double unit = place.width() / PrintGridSide();
    const int side = PrintCellSide();
    const auto origin = [side](int line) {
        const int boxes = (line + 2) / 3;
        return BorderThickness + (line - 1) * side + boxes * PrimaryThickness +
               (line - boxes) * SecondaryThickness;
    };
    constexpr int inset = 6;
    const QPointF corner = place.topLeft() - part.topLeft();
    return QRectF(corner.x() + (origin(cell.Column) + inset) * unit,
                  corner.y() + (origin(cell.Row) + inset) * unit, (side - 2 * inset) * unit,
                  (side - 2 * inset) * unit)
        .toRect();
}

// The game as the painter draws it when the same digit, 0 for none, stands in every cell: drawn
// large and then made small, so that the letters are those of paper and not of a screen.
QImage PatternOf(std::size_t digit, const QRectF &place, const QRect &part)
{
    constexpr int enlarged = 2;
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        word = (word & GivenBit) | (digit == 0 ? 0 : BitTable[digit]);
    }
    QImage pattern(part.size() * enlarged, QImage::Format_RGB32);
    pattern.fill(Qt::white);
    QPainter painter(&pattern);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF inside = place.translated(-part.topLeft());
    PrintGrid(painter, QRectF(inside.topLeft() * enlarged, inside.bottomRight() * enlarged), true);
    painter.end();
    const QImage small =
        pattern.scaled(part.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return GreyPart(small, small.rect());
}

std::array<QImage, 10> PatternsFor(const QRectF &place, const QRect &part, const GridTable &givens)
{
    std::array<QImage, 10> patterns;
    const GridTable before = Grid;
    Grid = givens;
    for (std::size_t digit = 0; digit < patterns.size(); ++digit) {
        patterns[digit] = PatternOf(digit, place, part);
    }
    Grid = before;
    return patterns;
}

long DifferenceAt(const QImage &one, const QImage &other, const QRect &part, QPoint shift)
{
    long difference = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const uchar *line = one.constScanLine(y);
        const uchar *shifted = other.constScanLine(y + shift.y()) + shift.x();
        for (int x = part.left(); x <= part.right(); ++x) {
            difference += std::abs(line[x] - shifted[x]);
        }
    }
    return difference;
}

// Two programs that paint the same place may differ by a pixel.
long DifferenceIn(const QImage &one, const QImage &other, const QRect &part)
{
    long least = std::numeric_limits<long>::max();
    for (const int down : {-1, 0, 1}) {
        for (const int across : {-1, 0, 1}) {
            least = std::min(least, DifferenceAt(one, other, part, {across, down}));
        }
    }
    return least;
}

} // namespace

void PrintTo(const std::string &path, const std::function<void()> &action)
{
    ChosenPrinter().setOutputFileName(QString::fromStdString(path));
    EXPECT_EQ(WhileModal<QPrintDialog>(action, [](QPrintDialog &dialog) { dialog.accept(); }), 1);
}

std::vector<QImage> PagesOf(const std::string &path)
{
    const QTemporaryDir folder;
    QProcess program;
    program.start("pdftoppm", {"-r", QString::number(PixelsPerInch), "-png",
                               QString::fromStdString(path), folder.filePath("page")});
    EXPECT_TRUE(program.waitForFinished(Patience));
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    std::vector<QImage> pages;
    const QDir files(folder.path());
    for (const QString &name : files.entryList({"*.png"}, QDir::Files, QDir::Name)) {
        pages.emplace_back(files.filePath(name));
    }
    return pages;
}

QRectF OnPage(const PagePlace &inches)
{
    const QMarginsF margins = ChosenPrinter().pageLayout().margins(QPageLayout::Inch);
    return {(inches.Left + margins.left()) * PixelsPerInch,
            (inches.Top + margins.top()) * PixelsPerInch, inches.Width * PixelsPerInch,
            inches.Height * PixelsPerInch};
}

QRect InkIn(const QImage &page, const QRectF &part)
{
    constexpr int white = 245; // whatever is lighter
    QRect ink;
    const QRect all = part.toAlignedRect().intersected(page.rect());
    for (int y = all.top(); y <= all.bottom(); ++y) {
        for (int x = all.left(); x <= all.right(); ++x) {
            if (qGray(page.pixel(x, y)) < white) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

std::string DigitsOn(const QImage &page, const QRectF &place, const GridTable &givens)
{
    const QRect whole = place.toAlignedRect().adjusted(-1, -1, 1, 1);
    const QImage read = GreyPart(page, whole);
    const std::array<QImage, 10> patterns = PatternsFor(place, whole, givens);
    std::string digits;
    for (int row = 1; row <= 9; ++row) {
        for (int column = 1; column <= 9; ++column) {
            const QRect part = CellPart(place, whole, MakeCell(column, row));
            std::array<long, 10> differences{};
            for (std::size_t digit = 0; digit < patterns.size(); ++digit) {
                differences[digit] = DifferenceIn(read, patterns[digit], part);
            }
            const auto best = std::ranges::min_element(differences) - differences.begin();
            digits += best == 0 ? '.' : static_cast<char>('0' + best);
        }
    }
    return digits;
}

} // namespace kelvarine::testing
