#include "ui/controls/print_preview.h"

#include "commands/print_run.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "paint/banner_painter.h"
#include "paint/print_painter.h"
#include "print/page_layout.h"
#include "print/print_settings.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace kelvarine {

namespace {

constexpr QSize LargestPreview{210, 270};
constexpr double BannerPoints = 18;
constexpr double LinePoints = 8;

// Draws a picture at a place, made smaller with care.
void DrawSmall(QPainter &painter, const QImage &picture, const PagePlace &place)
{
    const QRectF target(place.Left, place.Top, place.Width, place.Height);
    const QSize size = (target.size() * painter.device()->devicePixelRatio()).toSize();
    if (size.width() < picture.width() && size.height() < picture.height()) {
        painter.drawImage(target,
                          picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    } else {
        painter.drawImage(target, picture);
    }
}

// Whether Grid belongs to a run of the logic or to the generator instead of the player.
bool GridIsAway()
{
    return SearchActive != False || SearchKind != NotStoppable;
}

void DrawCurrentGame(QPainter &painter, QSize page, const QImage &picture)
{
    if (HasSize()) {
        DrawSmall(painter, picture,
                  CurrentGamePlace(page.width() / PrintableWidth, page.height() / PrintableHeight));
    }
}

void DrawBatch(QPainter &painter, QSize page, const QImage &picture)
{
    const auto index = static_cast<std::size_t>(PrintGamesPerPage);
    const PageLayout layout = LayoutOfGames(index, page.width(), page.height());
    for (int game = 0; game < GamesOnPage(); ++game) {
        DrawSmall(painter, picture, PlaceOf(layout, game));
    }
}

void DrawProgress(QPainter &painter, QSize page)
{
    const std::array lines{GamesScreenedText(GamesScreened), BatchProgressText()};
    PaintBanner(painter, page, BannerPoints, SearchingText, LinePoints, lines);
}

} // namespace

PrintPreview::PrintPreview(QWidget *parent) : QWidget(parent)
{
    setObjectName("picPrintPreview");
    setAccessibleName("Preview of the page");
    FitPage();
}

void PrintPreview::FitPage()
{
    const QSizeF page(PrintableWidth, PrintableHeight);
    const QSize size = page.scaled(LargestPreview, Qt::KeepAspectRatio).toSize();
    setFixedSize(size.expandedTo(QSize(1, 1)));
}

void PrintPreview::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (PrintRunning == False && !GridIsAway()) {
        picture = PrintMode == PrintNewGames ? PictureOfGrid(false) : PictureOfBoard();
    }
    if (PrintRunning != False) {
        DrawProgress(painter, size());
    } else if (PrintMode == PrintNewGames) {
        DrawBatch(painter, size(), picture);
    } else {
        DrawCurrentGame(painter, size(), picture);
    }
    painter.setPen(Qt::darkGray);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace kelvarine
