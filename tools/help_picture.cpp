#include "help_picture.h"

#include "grid/grid.h"
#include "grid/names.h"
#include "logic/technique_masks.h"
#include "ui/screens/help_page.h"

#include <QFont>
#include <QList>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <bit>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace kelvarine {

const PictureLook LightPicture{
    .Paper = QColor(255, 255, 255),
    .Given = QColor(236, 236, 236),
    .House = QColor(252, 245, 214),
    .Pattern = QColor(255, 222, 89),
    .Second = QColor(255, 190, 120),
    .Target = QColor(178, 219, 255),
    .Spoiler = QColor(255, 205, 210),
    .Ink = QColor(16, 16, 16),
    .PaleInk = QColor(108, 108, 108),
    .Lines = QColor(60, 60, 60),
    .Strike = QColor(176, 0, 32),
    .Chain = QColor(128, 0, 110),
    .JointInk = QColor(255, 255, 255),
};

const PictureLook DarkPicture{
    .Paper = QColor(24, 26, 28),
    .Given = QColor(44, 47, 50),
    .House = QColor(58, 54, 28),
    .Pattern = QColor(104, 84, 0),
    .Second = QColor(112, 58, 16),
    .Target = QColor(14, 70, 122),
    .Spoiler = QColor(110, 24, 36),
    .Ink = QColor(248, 248, 248),
    .PaleInk = QColor(166, 166, 166),
    .Lines = QColor(190, 190, 190),
    .Strike = QColor(255, 150, 150),
    .Chain = QColor(255, 170, 245),
    .JointInk = QColor(20, 20, 20),
};

namespace {

constexpr int NumberSize = 36;
constexpr int CoordinateSize = 20;
constexpr int MostColours = 48;
constexpr double JointRadius = 10.5;
constexpr double LineWidth = 2.4;
constexpr double Bow = 0.06; // by which a chain's line swerves, of its length, to pass numbers by

enum class Part { None, House, Second, Pattern, Target };

struct Joint {
    QPointF Place;
    int Number; // 0 for none
};

// ---- What a hint says ------------------------------------------------------------------------

// The numbers that stand in the hint's words between two others; none where these are missing.
CellWord NumbersBetween(std::string_view lead, std::string_view tail)
{
    const std::string_view words = HintText;
    const std::size_t found = words.find(lead);
    if (found == std::string_view::npos) {
        return 0;
    }
    CellWord numbers = 0;
    const std::size_t start = found + lead.size();
    for (const char sign : words.substr(start, words.find(tail, start) - start)) {
        numbers |= sign >= '1' && sign <= '9' ? BitOf(sign - '0') : 0;
    }
    return numbers;
}

bool IsHiddenGroup(std::int32_t technique)
{
    return technique == HiddenPair || technique == HiddenTriple || technique == HiddenQuad;
}

// True for techniques whose reason is one number alone.
bool IsOfOneNumber(std::int32_t technique)
{
    return technique == Intersection || technique == XWing || technique == Swordfish ||
           technique == Jellyfish || technique == SinglesChain;
}

bool IsSingle(std::int32_t technique)
{
    return technique == NakedSingle || technique == HiddenSingle;
}

// The numbers that the hint is about: what has to go, what forms a hidden group, or what is placed.
CellWord NumbersOfHint(std::int32_t technique)
{
    if (IsHiddenGroup(technique)) {
        return NumbersBetween("containing the numbers ", "\r");
    }
    if (technique == NakedSingle) {
        return NumbersBetween("must contain a ", " because") | NumbersBetween("which is a ", ".");
    }
    return technique == HiddenSingle ? NumbersBetween("can hold the number ", ".")
                                     : NumbersBetween("contains a ", " which");
}

// Place of a cell in the chain, from 1; 0 when it has none.
int PlaceInChain(Cell cell)
{
    for (int k = 1; k <= ChainColumns[0]; ++k) {
        const auto place = static_cast<std::size_t>(k);
        if (ChainColumns[place] == cell.Column && ChainRows[place] == cell.Row) {
            return k;
        }
    }
    return 0;
}

Part PartOf(Cell cell, std::int32_t technique)
{
    const CellWord word = WordAt(cell);
    if ((word & SelectedBit) != 0) {
        return Part::Target;
    }
    if (const int place = PlaceInChain(cell); place > 0) {
        return place % 2 == 1 ? Part::Pattern : Part::Second;
    }
    if ((word & HintCellBit) != 0) {
        return Part::Pattern;
    }
    const bool wing = technique == XYZWing || technique == HingeWing;
    if ((word & HintDomainBit) != 0) {
        return wing ? Part::Second : Part::House;
    }
    return Part::None;
}

bool IsReason(Part part)
{
    return part == Part::Pattern || part == Part::Second;
}

} // namespace

CellWord StruckByHint(Cell cell, std::int32_t technique)
{
    const Part part = PartOf(cell, technique);
    const CellWord numbers = NumbersOfHint(technique);
    if (IsHiddenGroup(technique)) {
        return part == Part::Target || IsReason(part) ? CandidatesOf(cell) & ~numbers : 0;
    }
    return part == Part::Target && !IsSingle(technique) ? CandidatesOf(cell) & numbers : 0;
}

namespace {

// The pencilmarks of a cell that count, besides those that fall.
CellWord StrongIn(Cell cell, std::int32_t technique)
{
    const Part part = PartOf(cell, technique);
    if (IsHiddenGroup(technique)) {
        return part == Part::Target || IsReason(part) ? NumbersOfHint(technique) : 0;
    }
    if (!IsReason(part)) {
        return 0;
    }
    return IsOfOneNumber(technique) ? NumbersOfHint(technique) : CandidateMask;
}

// ---- Places ----------------------------------------------------------------------------------

QRectF Square(Cell cell)
{
    return {static_cast<double>(PicturePlace(cell.Column)),
            static_cast<double>(PicturePlace(cell.Row)), PictureCellSide, PictureCellSide};
}

// The room of a pencilmark: every number has a place of its own in the cell.
QRectF MarkSquare(Cell cell, int number)
{
    const double side = PictureCellSide / 3.0;
    const int column = (number - 1) % 3;
    const int row = (number - 1) / 3;
    return {Square(cell).topLeft() + QPointF(column * side, row * side), QSizeF(side, side)};
}

int LowestOf(CellWord numbers)
{
    return std::countr_zero(numbers & CandidateMask);
}

// The points that the chain goes through: a cell of two numbers is entered on one of them and left
// on the other.
std::vector<Joint> JointsOfChain()
{
    std::vector<Joint> joints;
    const int form = ChainRows[0]; // as the board reads it, see grid.h
    CellWord number = form > 0 ? BitOf(form) : 0;
    for (int k = 1; k <= ChainColumns[0]; ++k) {
        const auto place = static_cast<std::size_t>(k);
        const Cell cell = MakeCell(ChainColumns[place], ChainRows[place]);
        if (form == 0) {
            joints.push_back({Square(cell).center(), 0});
            continue;
        }
        if (form < 0 && k == 1) {
            number = CandidatesOf(cell) & ~BitOf(-form);
        } else {
            joints.push_back({MarkSquare(cell, LowestOf(number)).center(), LowestOf(number)});
            number = form < 0 ? CandidatesOf(cell) & ~number : number;
        }
        if (form < 0 && k < ChainColumns[0]) {
            joints.push_back({MarkSquare(cell, LowestOf(number)).center(), LowestOf(number)});
        }
    }
    return joints;
}

// ---- Painting --------------------------------------------------------------------------------

void Write(QPainter &painter, const QRectF &room, const QString &text, int size, bool strong)
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(size);
    font.setBold(strong);
    painter.setFont(font);
    painter.drawText(room, Qt::AlignCenter | Qt::TextDontClip, text);
}

bool IsSupposed(Cell cell, const PictureSubject &subject)
{
    return subject.Supposed.Number != 0 && cell == subject.Supposed.Where;
}

QColor GroundOf(Cell cell, const PictureLook &look, const PictureSubject &subject)
{
    if (IsSupposed(cell, subject)) {
        return look.Spoiler;
    }
    switch (PartOf(cell, subject.Technique)) {
    case Part::Target:
        return look.Target;
    case Part::Pattern:
        return look.Pattern;
    case Part::Second:
        return look.Second;
    case Part::House:
        return look.House;
    case Part::None:
        break;
    }
    return (WordAt(cell) & GivenBit) != 0 ? look.Given : look.Paper;
}

void PaintGrounds(QPainter &painter, const PictureLook &look, const PictureSubject &subject)
{
    const int start = PicturePlace(1) - 3;
    const int side = PicturePlace(9) + PictureCellSide + 3 - start;
    painter.fillRect(start, start, side, side, look.Lines);
    for (const Cell cell : Cells) {
        painter.fillRect(Square(cell), GroundOf(cell, look, subject));
    }
}

void PaintCoordinates(QPainter &painter, const PictureLook &look)
{
    painter.setPen(look.Ink);
    for (int line = 1; line <= 9; ++line) {
        const QRectF above(PicturePlace(line), 0, PictureCellSide, PicturePlace(1) - 3);
        const QRectF beside(0, PicturePlace(line), PicturePlace(1) - 3, PictureCellSide);
        Write(painter, above, QString::fromStdString(ColumnName(line)), CoordinateSize, false);
        Write(painter, beside, QString::fromStdString(RowName(line)), CoordinateSize, false);
    }
}

void PaintChainLines(QPainter &painter, const PictureLook &look, const std::vector<Joint> &joints)
{
    painter.setPen(QPen(look.Chain, LineWidth));
    painter.setBrush(Qt::NoBrush);
    const bool inPairs = ChainRows[0] < 0; // from where a cell is left to where the next is entered
    for (std::size_t k = 1; k < joints.size(); k += inPairs ? 2 : 1) {
        const QPointF from = joints[k - 1].Place;
        const QPointF to = joints[k].Place;
        const QPointF aside(from.y() - to.y(), to.x() - from.x());
        QPainterPath path(from);
        path.quadTo((from + to) / 2 + 2 * Bow * aside, to);
        painter.drawPath(path);
    }
}

void PaintJoints(QPainter &painter, const PictureLook &look, const std::vector<Joint> &joints)
{
    for (const Joint &joint : joints) {
        if (joint.Number == 0) {
            continue;
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(look.Chain);
        painter.drawEllipse(joint.Place, JointRadius, JointRadius);
        painter.setPen(look.JointInk);
        const QRectF room(joint.Place - QPointF(JointRadius, JointRadius),
                          QSizeF(2 * JointRadius, 2 * JointRadius));
        Write(painter, room, QString::number(joint.Number), PictureMarkSize, false);
    }
}

// A number of the supposition, ringed.
void PaintRinged(QPainter &painter, const PictureLook &look, const QRectF &room, int number)
{
    painter.setPen(QPen(look.Strike, LineWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(room.center(), JointRadius, JointRadius);
    painter.setPen(look.Ink);
    Write(painter, room, QString::number(number), PictureMarkSize, true);
}

void PaintMarks(QPainter &painter, const PictureLook &look, Cell cell,
                const PictureSubject &subject)
{
    const bool alike = subject.Supposed.Number != 0;
    const CellWord struck = StruckByHint(cell, subject.Technique);
    const CellWord strong = StrongIn(cell, subject.Technique) | struck;
    for (int number = 1; number <= 9; ++number) {
        const QRectF room = MarkSquare(cell, number);
        if (IsSupposed(cell, subject) && number == subject.Supposed.Number) {
            PaintRinged(painter, look, room, number);
            continue;
        }
        if ((CandidatesOf(cell) & BitOf(number)) == 0) {
            continue;
        }
        const bool counts = (strong & BitOf(number)) != 0;
        painter.setPen(counts ? look.Ink : look.PaleInk);
        Write(painter, room, QString::number(number), PictureMarkSize, counts);
        if ((struck & BitOf(number)) != 0 && !alike) {
            painter.setPen(QPen(look.Strike, LineWidth));
            painter.drawLine(room.bottomLeft() + QPointF(1, -3), room.topRight() + QPointF(-1, 3));
        }
    }
}

void PaintNumbersOf(QPainter &painter, const PictureLook &look, Cell cell,
                    const PictureSubject &subject)
{
    if (CountCandidates(cell.Column, cell.Row) == 1 && !IsSupposed(cell, subject)) {
        painter.setPen(look.Ink);
        Write(painter, Square(cell), QString::number(LowestOf(CandidatesOf(cell))), NumberSize,
              false);
        return;
    }
    PaintMarks(painter, look, cell, subject);
    const bool placed = IsSingle(subject.Technique) && subject.Supposed.Number == 0 &&
                        PartOf(cell, subject.Technique) == Part::Target &&
                        NumbersOfHint(subject.Technique) != 0;
    if (placed) {
        painter.setPen(look.Strike);
        Write(painter, Square(cell), QString::number(LowestOf(NumbersOfHint(subject.Technique))),
              NumberSize, true);
    }
}

// The colours of a look, and those that most pixels of its picture have.
QList<QRgb> ColoursOf(const QImage &picture, const PictureLook &look)
{
    std::unordered_map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    std::vector<std::pair<int, QRgb>> frequent;
    frequent.reserve(counts.size());
    for (const auto &[colour, count] : counts) {
        frequent.emplace_back(count, colour);
    }
    std::sort(frequent.rbegin(), frequent.rend());
    QList<QRgb> colours;
    for (const QColor &colour :
         {look.Paper, look.Given, look.House, look.Pattern, look.Second, look.Target, look.Spoiler,
          look.Ink, look.PaleInk, look.Lines, look.Strike, look.Chain, look.JointInk}) {
        colours.append(colour.rgb());
    }
    for (std::size_t k = 0; k < frequent.size() && colours.size() < MostColours; ++k) {
        if (!colours.contains(frequent[k].second)) {
            colours.append(frequent[k].second);
        }
    }
    return colours;
}

int DistanceOf(QRgb one, QRgb other)
{
    const int red = qRed(one) - qRed(other);
    const int green = qGreen(one) - qGreen(other);
    const int blue = qBlue(one) - qBlue(other);
    return red * red + green * green + blue * blue;
}

// The same picture in few colours: the edges of letters and lines have many that are much alike,
// and without them its file is a third as large.
QImage WithFewColours(const QImage &picture, const PictureLook &look)
{
    const QList<QRgb> colours = ColoursOf(picture, look);
    QImage few(picture.size(), QImage::Format_Indexed8);
    few.setColorTable(colours);
    few.setDevicePixelRatio(picture.devicePixelRatio());
    std::unordered_map<QRgb, unsigned> places;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb colour = picture.pixel(x, y);
            auto place = places.find(colour);
            if (place == places.end()) {
                const auto nearest =
                    std::min_element(colours.begin(), colours.end(), [&](QRgb one, QRgb other) {
                        return DistanceOf(one, colour) < DistanceOf(other, colour);
                    });
                place = places.emplace(colour, nearest - colours.begin()).first;
            }
            few.setPixel(x, y, place->second);
        }
    }
    return few;
}

} // namespace

QImage HelpPicture(const PictureLook &look, const PictureSubject &subject)
{
    QImage picture(HelpPictureRatio * PictureSide, HelpPictureRatio * PictureSide,
                   QImage::Format_RGB32);
    picture.setDevicePixelRatio(HelpPictureRatio);
    picture.fill(look.Paper);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const std::vector<Joint> joints = JointsOfChain();
    PaintGrounds(painter, look, subject);
    PaintCoordinates(painter, look);
    PaintChainLines(painter, look, joints);
    for (const Cell cell : Cells) {
        PaintNumbersOf(painter, look, cell, subject);
    }
    PaintJoints(painter, look, joints);
    painter.end();
    return WithFewColours(picture, look);
}

} // namespace kelvarine
