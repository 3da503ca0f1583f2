#include "ui/window/toolbar_widget.h"

#include "input/spoken.h"
#include "input/toolbar.h"
#include "paint/text.h"
#include "paint/toolkit_colour.h"
#include "ui/window/board_widget.h"
#include "ui/window/key_decoder.h"
#include "ui/window/later.h"
#include "ui/window/main_window.h"
#include "ui/window/tool_accessible.h"
#include "ui/window/tools_listen.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTouchEvent>

#include <cmath>

namespace kelvarine {

namespace {

constexpr int EdgeShade = 170; // percent, as the toolkit darkens colours
constexpr int PressedShade = 125;
constexpr qreal Rounding = 3; // pixels
constexpr int CaptionMargin = 2;
constexpr int SmallestCaption = 6;

// How light a colour looks, 0 black to 1 white.
double Lightness(const QColor &colour)
{
    constexpr double gamma = 2.2;
    return 0.2126 * std::pow(colour.redF(), gamma) + 0.7152 * std::pow(colour.greenF(), gamma) +
           0.0722 * std::pow(colour.blueF(), gamma);
}

// Black or white, whichever reads better on a colour.
QColor InkOn(const QColor &background)
{
    constexpr double even = 0.18; // as far from black as from white, to the eye
    return Lightness(background) < even ? Qt::white : Qt::black;
}

} // namespace

ToolButtonWidget::ToolButtonWidget(std::int32_t index, QWidget *parent)
    : QPushButton(parent), number(index), toldName(Text(SpokenTool(index)))
{
    DescribeToolsToTools(); // before anything asks for the description, because that is kept
    setObjectName(Text("cmdTool%1").arg(index));
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setAutoDefault(false);
    // Mouse, keys and fingers are taken as they come; this is the way of the toolkit's own click.
    connect(this, &QPushButton::clicked, this, [this] { ToolPressed(number); });
}

void ToolButtonWidget::Update()
{
    const ToolButton &button = ToolButtons[static_cast<std::size_t>(number)];
    if (const QString words = Text(button.Caption); caption != words) {
        caption = words;
        update();
    }
    setToolTip(Text(button.Tip));
    TellWords();
    const QColor background = ToolkitColour(button.Background);
    QPalette colours = palette();
    colours.setColor(QPalette::Button, background);
    colours.setColor(QPalette::ButtonText, InkOn(background));
    setPalette(colours);
    setGeometry(button.Place.X, button.Place.Y, button.Place.Width, button.Place.Height);
}

void ToolButtonWidget::paintEvent(QPaintEvent * /*event*/)
{
    // Painted here because the styles of the toolkit either shade the colour of a button or leave
    // it out, and in highlight mode it has to be the very colour that a cell will get.
    const QColor background = palette().color(QPalette::Button);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::ButtonText);
    painter.setPen(underMouse() ? ink : background.darker(EdgeShade));
    painter.setBrush(isDown() ? background.darker(PressedShade) : background);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Rounding, Rounding);
    painter.setPen(ink);
    painter.setFont(CaptionFont());
    painter.drawText(rect(), Qt::AlignCenter, caption);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), 1, 1);
    }
}

QFont ToolButtonWidget::CaptionFont() const
{
    // The toolbar is as high as it is; what does not fit is written smaller.
    QFont fitting = font();
    int pixels = QFontInfo(fitting).pixelSize();
    const QSize room(width() - 2 * CaptionMargin, height());
    while (pixels > SmallestCaption && !QRect({}, room).contains(QRect({}, CaptionSize(fitting)))) {
        fitting.setPixelSize(--pixels);
    }
    return fitting;
}

QSize ToolButtonWidget::CaptionSize(const QFont &letters) const
{
    const QFontMetrics measure(letters);
    return {measure.horizontalAdvance(caption), measure.height()};
}

QString ToolButtonWidget::Caption() const
{
    return caption;
}

// What a button is called changes with few presses, what it would do with nearly all of them; that
// is read by whoever comes to the button, and told only where he is.
void ToolButtonWidget::TellWords()
{
    if (!ToolsListen()) {
        toldName = Text(SpokenTool(number)); // as whoever comes later will find it
        return;
    }
    TellChange(toldName, SpokenTool(number), QAccessible::NameChanged);
    if (hasFocus()) { // and a press does not take the keyboard to the board
        Later(this, &ToolButtonWidget::TellUse);
    }
}

void ToolButtonWidget::TellUse()
{
    if (hasFocus()) {
        TellChange(toldUse, SpokenToolUse(number), QAccessible::DescriptionChanged);
    }
}

void ToolButtonWidget::TellChange(QString &told, const std::string &words, QAccessible::Event kind)
{
    if (told != Text(words)) {
        told = Text(words);
        QAccessibleEvent event(this, kind);
        QAccessible::updateAccessibility(&event);
    }
}

void ToolButtonWidget::focusInEvent(QFocusEvent *event)
{
    QPushButton::focusInEvent(event);
    if (ToolsListen()) {
        toldUse = Text(SpokenToolUse(number)); // as it is read with the focus
    }
}

void ToolButtonWidget::mousePressEvent(QMouseEvent * /*event*/)
{
    setDown(true);
    ToolPressed(number);
    // A question that came up meanwhile has taken the release.
    setDown(QGuiApplication::mouseButtons() != Qt::NoButton);
}

void ToolButtonWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

void ToolButtonWidget::mouseMoveEvent(QMouseEvent *event)
{
    SlideToolbar(mapToParent(event->position().toPoint()).x(), parentWidget()->width());
}

void ToolButtonWidget::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    setDown(false);
}

void ToolButtonWidget::keyPressEvent(QKeyEvent *event)
{
    if (!IsModifierOrTab(event->key())) {
        ToolPressed(number);
    }
}

void ToolButtonWidget::keyReleaseEvent(QKeyEvent *event)
{
    // Given on, a modifier that comes up would take the focus to the board.
    Window()->Client->Board->TakeReleaseElsewhere(*event);
}

ToolbarWidget::ToolbarWidget(QWidget *parent) : QWidget(parent)
{
    setObjectName("picToolbar");
    setAttribute(Qt::WA_AcceptTouchEvents); // also those of its buttons
    setAutoFillBackground(true);
    for (std::size_t index = 0; index < ToolButtonCount; ++index) {
        buttons.push_back(new ToolButtonWidget(static_cast<std::int32_t>(index), this));
    }
}

bool ToolbarWidget::event(QEvent *event)
{
    if (event->type() == QEvent::TouchBegin) {
        const QPoint place =
            static_cast<QTouchEvent *>(event)->points().front().position().toPoint();
        if (const std::optional<std::int32_t> tool = ToolUnderFinger(place.x(), place.y())) {
            event->accept();
            ToolPressed(*tool);
            return true;
        }
    }
    return QWidget::event(event);
}

void ToolbarWidget::Update()
{
    for (ToolButtonWidget *button : buttons) {
        button->Update();
    }
}

} // namespace kelvarine
