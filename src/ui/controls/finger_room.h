// Room for fingers: on screens that have touch, whatever can be pressed is at least as high and as
// wide as a finger needs.
#pragma once

#include <QProxyStyle>

namespace kelvarine {

// What a finger needs, in pixels each way.
inline constexpr int FingerSide = 24;

// A style, by default the desktop's, with that room for the controls that it measures.
class FingerStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption *option,
                                         const QSize &size, const QWidget *widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option,
                                  const QWidget *widget) const override;
    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption *option,
                                       const QWidget *widget) const override;
};

// Gives the application's style that room when one of its screens has touch. Before windows are
// made.
void MakeRoomForFingers();

// A length of a control that measures itself, such as the height of a line of text, and at least
// what a finger needs where that style is in force.
int WithRoomForFinger(int length);

} // namespace kelvarine
