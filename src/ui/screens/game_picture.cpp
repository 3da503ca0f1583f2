#include "ui/screens/game_picture.h"

#include "game/clock.h"
#include "grid/rating_words.h"
#include "logic/driver.h"
#include "outside/whole_file.h"
#include "paint/sharp_lines.h"
#include "paint/text.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kelvarine {

namespace {

// Far more than any game takes, and read in no time.
constexpr std::size_t LongestGame = std::size_t{1} << 20U;

constexpr int BestSide = 171; // of the board, nine cells of nineteen pixels
constexpr int LinesBelow = 3;

QString WordsOf(const GameSummary &game)
{
    QStringList lines;
    if (game.Rating != NotRated) {
        lines.append(Text(WordsOfRating(game.Rating).Capital));
    }
    lines.append(QString(game.Givens == 1 ? "%1 given" : "%1 givens").arg(game.Givens));
    if (game.Seconds >= 0) {
        lines.append("Time " + Text(TimeText(game.Seconds)).trimmed());
    }
    return lines.join(u'\n');
}

// Lines between the cells, those between the boxes stronger.
void PaintLines(QPainter &painter, const QRect &board, const QColor &ink)
{
    const QRect lined = board.adjusted(0, 0, 1, 1); // with the last lines
    for (const bool strong : {false, true}) {
        QColor colour = ink;
        colour.setAlphaF(strong ? 0.8F : 0.25F);
        for (int line = 0; line <= 9; ++line) {
            if ((line % 3 == 0) == strong) {
                const int along = board.width() * line / 9;
                DrawLineDown(painter, lined, board.left() + along, 1, colour);
                DrawLineAcross(painter, lined, board.top() + along, 1, colour);
            }
        }
    }
}

void PaintNumbers(QPainter &painter, const QRect &board, const GridTable &cells,
                  const QPalette &palette)
{
    const double side = board.width() / 9.0;
    QFont font = painter.font();
    font.setPixelSize(std::max(6, static_cast<int>(side * 0.68)));
    for (const Cell cell : Cells) {
        const CellWord word = cells[cell.Column][cell.Row];
        if (CandidatesIn(word) != 1) {
            continue;
        }
        const bool given = (word & GivenBit) != 0;
        font.setBold(given);
        painter.setFont(font);
        painter.setPen(palette.color(given ? QPalette::Text : QPalette::Link));
        const QRectF place(board.left() + (cell.Column - 1) * side,
                           board.top() + (cell.Row - 1) * side, side, side);
        painter.drawText(place, Qt::AlignCenter, QString::number(LowestCandidate(word)));
    }
}

} // namespace

GamePicture::GamePicture(QWidget *parent) : QWidget(parent)
{
    setAccessibleName("Selected game");
    setMinimumWidth(120);
    turn_.setSingleShot(true);
    connect(&turn_, &QTimer::timeout, this, &GamePicture::TakeTurn);
}

QSize GamePicture::sizeHint() const
{
    return {BestSide + 1, BestSide + 1 + (LinesBelow + 1) * fontMetrics().lineSpacing()};
}

void GamePicture::ShowFile(const std::string &path)
{
    wanted_ = path;
    asked_ = true;
    turn_.start();
}

// A rating lets events through, so it starts where none of the lists is at work, and one at a time.
void GamePicture::TakeTurn()
{
    if (reading_.empty()) {
        reading_ = wanted_;
        asked_ = false;
        ShowNothing();
        if (!reading_.empty()) {
            Read();
        }
        if (asked_) {
            turn_.start();
        }
    } else if (wanted_ != reading_ && SearchActive != False) {
        SearchActive = False;
        turn_.start(); // a rating is more than one run
    }
}

void GamePicture::ShowNothing()
{
    game.reset();
    words_.clear();
    setAccessibleDescription(words_);
    update();
}

void GamePicture::Read()
{
    std::string contents;
    std::string error;
    std::optional<GameSummary> summary;
    const bool read = ReadWholeFile(reading_, contents, error, LongestGame);
    if (read) {
        summary = SummaryOf(contents);
    }
    if (std::exchange(reading_, {}) != wanted_) {
        return; // another file has been asked for
    }
    game = summary;
    if (!read) {
        words_ = "This file cannot be read.\n" + Text(error);
    } else {
        words_ = game ? WordsOf(*game) : "This file holds no game.";
    }
    setAccessibleDescription(words_);
    update();
}

QRect GamePicture::BoardPlace() const
{
    const int below = (LinesBelow + 1) * fontMetrics().lineSpacing();
    const int side = std::min({width() - 1, height() - 1 - below, 2 * BestSide});
    const int whole = std::max(side / 9 * 9, 0);
    return {(width() - whole) / 2, 0, whole, whole};
}

void GamePicture::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QRect board = BoardPlace();
    QRect below = rect();
    if (game && board.width() > 0) {
        painter.fillRect(board, palette().color(QPalette::Base));
        PaintLines(painter, board, palette().color(QPalette::Text));
        PaintNumbers(painter, board, game->Cells, palette());
        below.setTop(board.bottom() + fontMetrics().lineSpacing() / 2);
        painter.setFont(font());
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(below, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, words_);
}

} // namespace kelvarine
