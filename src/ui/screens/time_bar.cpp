#include "ui/screens/time_bar.h"

#include <QPainter>

#include <algorithm>

namespace kelvarine {

namespace {

constexpr int BarHeight = 3;
constexpr float AverageStrength = 0.3F;
constexpr float BestStrength = 0.7F;

} // namespace

TimeBar::TimeBar(QWidget *parent) : QWidget(parent)
{
    setFixedHeight(BarHeight);
}

void TimeBar::ShowTimes(int best, int average, int longest)
{
    bestTime = std::min(best, average);
    averageTime = average;
    longestTime = longest;
    setToolTip(average > 0 ? "The pale bar is the average, the strong one the best time" : "");
    update();
}

double TimeBar::BestPart() const
{
    return longestTime > 0 ? static_cast<double>(bestTime) / longestTime : 0;
}

double TimeBar::AveragePart() const
{
    return longestTime > 0 ? static_cast<double>(averageTime) / longestTime : 0;
}

void TimeBar::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    QColor colour = palette().color(QPalette::Highlight);
    colour.setAlphaF(AverageStrength);
    painter.fillRect(QRectF(0, 0, AveragePart() * width(), height()), colour);
    colour.setAlphaF(BestStrength);
    painter.fillRect(QRectF(0, 0, BestPart() * width(), height()), colour);
}

int SecondsOf(const QString &time)
{
    const QStringList parts = time.trimmed().split(u':');
    if (parts.size() != 3) {
        return 0;
    }
    return (parts[0].toInt() * 60 + parts[1].toInt()) * 60 + parts[2].toInt();
}

} // namespace kelvarine
