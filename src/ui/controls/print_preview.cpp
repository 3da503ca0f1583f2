#include "ui/controls/print_preview.h"

#include "commands/print_run.h"
#include "configure/presets.h"
#include "game/search.h"
#include "generator/generator.h"
#include "logic/driver.h"
#include "outside/printer.h"
#include "paint/banner_painter.h"
#include "paint/print_painter.h"
#include "paint/sharp_lines.h"
#include "paint/text.h"
#include "print/page_layout.h"
#include "print/page_words.h"
#include "print/print_settings.h"
#include "ui/controls/configure_controls.h"
#include "ui/controls/kept_painting.h"
#include "ui/window/described_kind.h"

#include <QAccessibleWidget>
#include <QPainter>

#include <algorithm>
#include <array>
#include <vector>

namespace kelvarine {

namespace {

constexpr QSize LargestPreview{210, 270};
constexpr double BannerPoints = 18;
constexpr double LinePoints = 8;
constexpr std::int32_t LightPreset = 1; // white cells, thin lines

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
    return IsBusy() || SearchKind != NotStoppable;
}

// Where the page has pictures.
std::vector<PagePlace> PlacesOn(QSize page)
{
    std::vector<PagePlace> places;
    if (PrintMode == PrintNewGames) {
        const auto index = static_cast<std::size_t>(PrintGamesPerPage);
        const PageLayout layout = LayoutOfGames(index, page.width(), page.height());
        for (int game = 0; game < GamesOnPage(); ++game) {
            places.push_back(PlaceOf(layout, game));
        }
    } else if (HasSize()) {
        places.push_back(
            CurrentGamePlace(page.width() / PrintableWidth, page.height() / PrintableHeight));
    }
    return places;
}

QImage TakePicture()
{
    return PrintMode == PrintNewGames ? PictureOfGrid(false) : PictureOfBoard();
}

QImage TakeLightPicture()
{
    const KeptPainting kept;
    LoadPreset(LightPreset);
    MarginThickness = 0;
    LayoutBoard(BoardPlace.Width, BoardPlace.Height, 0);
    return TakePicture();
}

// Share of a picture that ink covers.
double InkOf(const QImage &picture)
{
    double covered = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = line[x];
            covered += 255 - std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)});
        }
    }
    return covered / (255.0 * picture.width() * picture.height());
}

void DrawProgress(QPainter &painter, QSize page)
{
    const std::array lines{GamesScreenedText(GamesScreened), BatchProgressText()};
    PaintBanner(painter, page, BannerPoints, SearchingText, LinePoints, lines);
}

std::string WordsNow()
{
    return PrintRunning != False ? "searching," + BatchProgressText() : PageInWords(DecimalSign());
}

// A picture, and not the empty widget that the toolkit takes it for.
class PageAccess : public QAccessibleWidget {
public:
    explicit PageAccess(PrintPreview *preview) : QAccessibleWidget(preview, QAccessible::Graphic)
    {
    }
};

} // namespace

PrintPreview::PrintPreview(QWidget *parent) : QWidget(parent)
{
    DescribeKindToTools<PrintPreview, PageAccess>();
    setObjectName("picPrintPreview");
    FitPage();
    ShowPage();
}

void PrintPreview::ShowPage()
{
    SetSpokenName(*this, "Preview of the page: " + Text(WordsNow()).trimmed());
    update();
}

void PrintPreview::FitPage()
{
    const QSizeF page(PrintableWidth, PrintableHeight);
    const QSize size = page.scaled(LargestPreview, Qt::KeepAspectRatio).toSize();
    setFixedSize(size.expandedTo(QSize(1, 1)));
}

void PrintPreview::ShowLight(bool on)
{
    light = on;
    update();
}

void PrintPreview::TakePictures()
{
    if (PrintRunning == False && !GridIsAway()) {
        picture = TakePicture();
        lightPicture = light ? TakeLightPicture() : QImage();
        MeasureInk();
    }
}

void PrintPreview::MeasureInk()
{
    double covered = 0;
    for (const PagePlace &place : PlacesOn(size())) {
        const QRectF onPage =
            QRectF(place.Left, place.Top, place.Width, place.Height).intersected(rect());
        covered += onPage.width() * onPage.height();
    }
    const double share = covered > 0 ? covered * InkOf(picture) / (width() * height()) : 0;
    if (const int percent = qRound(share * 100); percent != ink) {
        ink = percent;
        emit InkChanged(percent);
    }
}

void PrintPreview::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    TakePictures();
    if (PrintRunning != False) {
        DrawProgress(painter, size());
    } else {
        for (const PagePlace &place : PlacesOn(size())) {
            DrawSmall(painter, lightPicture.isNull() ? picture : lightPicture, place);
        }
    }
    DrawSharpFrame(painter, rect(), Qt::darkGray);
}

} // namespace kelvarine
