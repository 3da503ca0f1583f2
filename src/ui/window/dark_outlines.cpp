#include "ui/window/dark_outlines.h"

#include "paint/sharp_lines.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace kelvarine {

namespace {

constexpr const char *PlainStyle = "fusion"; // the toolkit's own

// How much of the text's colour an outline has.
constexpr double TextShare = 0.45;

// The style darkens the window's colour to that of an outline by this.
constexpr double Darkening = 1.4;

bool IsDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

int Between(int window, int text)
{
    const double outline = window + TextShare * (text - window);
    return std::min(255, static_cast<int>(outline * Darkening));
}

// A palette from which the style takes an outline that is lighter than the window.
QPalette WithLightOutline(QPalette palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    palette.setColor(QPalette::Window, QColor(Between(window.red(), text.red()),
                                              Between(window.green(), text.green()),
                                              Between(window.blue(), text.blue())));
    return palette;
}

// What the style takes for a frame with a palette.
QColor FrameColour(const QPalette &palette)
{
    constexpr int darkening = 140; // in hundredths
    constexpr int lightening = 108;
    return palette.color(QPalette::Window).darker(darkening).lighter(lightening);
}

class LightOutlines : public QProxyStyle {
public:
    LightOutlines() : QProxyStyle(QStyleFactory::create(PlainStyle))
    {
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
        const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
        // Of a list or a text, whose sides the style loses where a pixel is no whole one.
        const bool isFrame = element == PE_Frame && frame != nullptr &&
                             qobject_cast<const QAbstractScrollArea *>(widget) != nullptr;
        const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
        if (isBox && button != nullptr && IsDark(option->palette)) {
            QStyleOptionButton light = *button;
            light.palette = WithLightOutline(light.palette);
            QProxyStyle::drawPrimitive(element, &light, painter, widget);
        } else if (element == PE_FrameLineEdit && frame != nullptr && IsDark(option->palette)) {
            QStyleOptionFrame light = *frame;
            light.palette = WithLightOutline(light.palette);
            QProxyStyle::drawPrimitive(element, &light, painter, widget);
        } else if (isFrame) {
            const QPalette palette =
                IsDark(option->palette) ? WithLightOutline(option->palette) : option->palette;
            DrawSharpFrame(*painter, option->rect, FrameColour(palette));
        } else {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }
};

} // namespace

void LightenDarkOutlines()
{
    if (QApplication::style()->name() == PlainStyle) {
        QApplication::setStyle(new LightOutlines);
    }
    // The application owns the style from there on.
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
}

} // namespace kelvarine
