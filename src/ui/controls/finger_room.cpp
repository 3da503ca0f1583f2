#include "ui/controls/finger_room.h"

#include <QApplication>
#include <QInputDevice>
#include <QStyleOption>

#include <algorithm>

namespace kelvarine {

namespace {

bool HasTouch()
{
    return std::ranges::any_of(QInputDevice::devices(), [](const QInputDevice *device) {
        return device->type() == QInputDevice::DeviceType::TouchScreen;
    });
}

// A line between entries is nothing to press.
bool IsLineOfMenu(const QStyleOption *option)
{
    const auto *entry = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    return entry != nullptr && entry->menuItemType == QStyleOptionMenuItem::Separator;
}

bool IsInForce()
{
    return qobject_cast<const FingerStyle *>(QApplication::style()) != nullptr;
}

} // namespace

QSize FingerStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                    const QSize &size, const QWidget *widget) const
{
    const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
    case CT_CheckBox:
    case CT_RadioButton:
    case CT_ToolButton:
    case CT_ComboBox:
    case CT_LineEdit:
    case CT_MenuBarItem:
    case CT_ItemViewItem:
    case CT_TabBarTab:
    case CT_HeaderSection:
        return usual.expandedTo({FingerSide, FingerSide});
    case CT_MenuItem:
        return IsLineOfMenu(option) ? usual : usual.expandedTo({FingerSide, FingerSide});
    default:
        return usual;
    }
}

int FingerStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                             const QWidget *widget) const
{
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_ScrollBarExtent ? std::max(usual, FingerSide) : usual;
}

QRect FingerStyle::subElementRect(SubElement element, const QStyleOption *option,
                                  const QWidget *widget) const
{
    // A box without a caption would take presses on its small mark alone.
    if (option != nullptr &&
        (element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect)) {
        return option->rect;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

void MakeRoomForFingers()
{
    if (HasTouch() && !IsInForce()) {
        // Over the style that is there, which goes on to measure and to draw.
        QApplication::setStyle(new FingerStyle(QApplication::style()));
    }
    // The application owns the style from there on.
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
}

int WithRoomForFinger(int length)
{
    return IsInForce() ? std::max(length, FingerSide) : length;
}

} // namespace kelvarine
