#include "ui/configure/tab_strip.h"

#include "game/screens.h"
#include "ui/configure/tab_strip_access.h"
#include "ui/controls/finger_room.h"
#include "ui/controls/focus_frame.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace kelvarine {

namespace {

constexpr int EdgeRoom = 2;  // kept free at the right end of the window
constexpr int Corner = 3;    // cut off at the upper corners of a tab
constexpr int LineRoom = 3;  // above and below a text
constexpr int TextRoom = 16; // on both sides of it, with letters that stand out
constexpr int Accent = 3;    // height of the mark on the current tab
constexpr int Shade = 112;   // of the tabs behind, in hundredths

// The tab that an arrow key leads to, round the strip.
int NeighbourOf(int tab, int key)
{
    switch (key) {
    case Qt::Key_Left:
        return (tab + TabCount - 1) % TabCount;
    case Qt::Key_Right:
        return (tab + 1) % TabCount;
    case Qt::Key_Up:
    case Qt::Key_Down:
        return (tab + TabsInRow) % TabCount;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return TabCount - 1;
    default:
        return -1;
    }
}

// Between the colours of window and text, so that it shows on light and on dark windows.
QColor EdgeColour(const QPalette &colours)
{
    const QColor window = colours.color(QPalette::Window);
    const QColor text = colours.color(QPalette::WindowText);
    const auto mix = [](int near, int far) {
        return (2 * near + far) / 3;
    };
    return {mix(window.red(), text.red()), mix(window.green(), text.green()),
            mix(window.blue(), text.blue())};
}

void DrawEdges(QPainter &painter, const QRect &place, const QPalette &colours)
{
    const int left = place.left();
    const int right = place.right();
    const int top = place.top();
    const int bottom = place.bottom();
    painter.setPen(EdgeColour(colours));
    painter.drawLine(left, bottom, left, top + Corner);
    painter.drawLine(left, top + Corner, left + Corner, top);
    painter.drawLine(left + Corner, top, right - Corner, top);
    painter.drawLine(right - Corner, top, right, top + Corner);
    painter.drawLine(right, top + Corner, right, bottom);
}

} // namespace

TabStrip::TabStrip(QWidget *parent, std::array<QString, TabCount> texts,
                   std::array<char, TabCount> keys, std::function<void(std::int32_t)> choose)
    : QWidget(parent), tabTexts(std::move(texts)), accessKeys(keys), chooseTab(std::move(choose))
{
    InstallTabStripAccess();
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName("Tabs");
}

const QString &TabStrip::TextOfTab(int tab) const
{
    return tabTexts[static_cast<std::size_t>(tab)];
}

QString TabStrip::MarkedText(int tab) const
{
    QString text = TextOfTab(tab);
    const QChar key = accessKeys[static_cast<std::size_t>(tab)];
    return text.insert(text.indexOf(key, 0, Qt::CaseInsensitive), u'&');
}

QRect TabStrip::PlaceOfTab(int tab) const
{
    const int tabWidth = TabWidthFor(width());
    const bool front = IsInFront(tab, CurrentTab);
    const int left = TabLeft(tab, CurrentTab, tabWidth);
    const int frontTop = RearRowTop + RowHeight();
    // Four quarters of a wide window and the strip's own edges are more than the window: the last
    // tab of a row ends with it.
    const int last = width() - EdgeRoom - (front ? RearRowShift : 0);
    const int right = std::min(left + tabWidth - 2, last);
    return front ? QRect(QPoint(left, frontTop), QPoint(right, Height() - 1))
                 : QRect(QPoint(left, RearRowTop), QPoint(right, frontTop - 1));
}

int TabStrip::Height() const
{
    return RearRowTop + 2 * RowHeight() + (TabBaseline + 1 - TabRowsEnd);
}

int TabStrip::WidthForTexts() const
{
    QFont letters = font();
    letters.setBold(true); // as the current tab's are
    const QFontMetrics metrics(letters);
    int widest = 0;
    for (const QString &text : tabTexts) {
        widest = std::max(widest, metrics.horizontalAdvance(text));
    }
    return TabsInRow * (widest + TextRoom) + FirstTabLeft + RearRowShift + EdgeRoom;
}

int TabStrip::RowHeight() const
{
    return WithRoomForFinger(std::max(FrontRowTop - RearRowTop, fontMetrics().height() + LineRoom));
}

void TabStrip::Choose(int tab)
{
    if (tab != CurrentTab) {
        chooseTab(tab);
    }
}

void TabStrip::ShowCurrent()
{
    update();
}

void TabStrip::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setPen(EdgeColour(palette()));
    painter.drawLine(0, Height() - 1, width(), Height() - 1);
    // The rear row comes first, so that the front one covers its lower edge.
    for (const bool front : {false, true}) {
        for (int tab = 0; tab < TabCount; ++tab) {
            if (IsInFront(tab, CurrentTab) != front) {
                continue;
            }
            PaintTab(painter, tab);
        }
    }
}

// The current tab has the panel's colour, a mark on its head and no lower edge; the others lie in
// shade.
void TabStrip::PaintTab(QPainter &painter, int tab) const
{
    const QPalette colours = palette();
    const QRect place = PlaceOfTab(tab);
    const bool front = IsInFront(tab, CurrentTab);
    const bool current = tab == CurrentTab;
    const QColor window = colours.color(QPalette::Window);
    painter.fillRect(place.adjusted(1, 1, 0, current ? 0 : -1),
                     current ? window : window.darker(Shade));
    DrawEdges(painter, place, colours);
    QFont letters = font();
    letters.setBold(current);
    painter.setFont(letters);
    if (current) {
        painter.fillRect(place.left() + Corner, place.top(), place.width() - 2 * Corner, Accent,
                         colours.color(QPalette::Highlight));
    }
    painter.setPen(colours.color(QPalette::WindowText));
    painter.drawText(place.adjusted(0, 0, 0, front ? -2 : 0),
                     Qt::AlignCenter | Qt::TextShowMnemonic, MarkedText(tab));
    if (current) {
        PaintFocus(*this, painter, place.adjusted(6, Accent + 2, -6, -3));
    }
}

void TabStrip::focusInEvent(QFocusEvent *event)
{
    NoteFocus(*this, *event);
}

void TabStrip::focusOutEvent(QFocusEvent *event)
{
    NoteFocus(*this, *event);
}

void TabStrip::mousePressEvent(QMouseEvent *event)
{
    const QPointF place = event->position();
    // The rule knows rows of the usual height.
    const double usual = FrontRowTop - RearRowTop;
    const double y = RearRowTop + (place.y() - RearRowTop) * usual / RowHeight();
    if (const auto tab = TabAt(place.x(), y, CurrentTab, TabWidthFor(width()))) {
        Choose(*tab);
    }
}

void TabStrip::keyPressEvent(QKeyEvent *event)
{
    const int tab = NeighbourOf(CurrentTab, event->key());
    if (tab < 0) {
        event->ignore();
        return;
    }
    NoteKey(*this);
    Choose(tab);
}

} // namespace kelvarine
