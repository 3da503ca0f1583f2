#include "support/widget_paper.h"

#include "board/look.h"
#include "print/page_layout.h"
#include "print/print_painter.h"
#include "ui/printer_qt.h"

#include <QApplication>
#include <QDir>
#include <QPrintDialog>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace kelvarine::testing {

namespace {

// A cell in the middle, where fills and digits are, but no frames.
QRect CellPart(const QRectF &place, Cell cell)
{
    const double unit = place.width() / PrintGridSide();
    const int side = PrintCellSide();
    const auto origin = [side](int line) {
        const int boxes = (line + 2) / 3;
        return BorderThickness + (line - 1) * side + boxes * PrimaryThickness +
               (line - boxes) * SecondaryThickness;
    };
    constexpr int inset = 6;
    return QRectF(place.left() + (origin(cell.Column) + inset) * unit,
                  place.top() + (origin(cell.Row) + inset) * unit, (side - 2 * inset) * unit,
                  (side - 2 * inset) * unit)
        .toRect();
}

// Pages on which the game shows the same digit, 0 for none, in every cell.
std::array<QImage, 10> PatternsFor(QSize page, const QRectF &place, const GridTable &givens)
{
    std::array<QImage, 10> patterns;
    const GridTable before = Grid;
    for (std::size_t digit = 0; digit < patterns.size(); ++digit) {
        for (const Cell cell : Cells) {
            const CellWord given = givens[cell.Column][cell.Row] & GivenBit;
            WordAt(cell) = given | (digit == 0 ? 0 : BitTable[digit]);
        }
        QImage pattern(page, QImage::Format_RGB32);
        pattern.fill(Qt::white);
        QPainter painter(&pattern);
        painter.setRenderHint(QPainter::Antialiasing);
        PrintGrid(painter, place, true);
        painter.end();
        patterns[digit] = pattern;
    }
    Grid = before;
    return patterns;
}

long DifferenceIn(const QImage &one, const QImage &other, const QRect &part)
{
    long difference = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            difference += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
        }
    }
    return difference;
}

} // namespace

void PrintTo(const std::string &path, const std::function<void()> &action)
{
    ChosenPrinter().setOutputFileName(QString::fromStdString(path));
    QTimer watch;
    int dialogs = 0;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget())) {
            ++dialogs;
            dialog->accept();
        }
    });
    watch.start(1);
    action();
    EXPECT_EQ(dialogs, 1);
}

std::vector<QImage> PagesOf(const std::string &path)
{
    const QTemporaryDir folder;
    QProcess program;
    program.start("pdftoppm", {"-r", QString::number(PixelsPerInch), "-png",
                               QString::fromStdString(path), folder.filePath("page")});
    EXPECT_TRUE(program.waitForFinished());
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
    const std::array<QImage, 10> patterns = PatternsFor(page.size(), place, givens);
    std::string digits;
    for (int row = 1; row <= 9; ++row) {
        for (int column = 1; column <= 9; ++column) {
            const QRect part = CellPart(place, MakeCell(column, row));
            long least = std::numeric_limits<long>::max();
            char best = '?';
            for (std::size_t digit = 0; digit < patterns.size(); ++digit) {
                const long difference = DifferenceIn(page, patterns[digit], part);
                if (difference < least) {
                    least = difference;
                    best = digit == 0 ? '.' : static_cast<char>('0' + digit);
                }
            }
            digits += best;
        }
    }
    return digits;
}

} // namespace kelvarine::testing
