#include "ui/qt/board_style.h"

#include <QAbstractButton>

BoardStyle::BoardStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
}

int BoardStyle::pixelMetric(
    PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    // No button has an icon; its size is set to that of the mark.
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    if (button == nullptr)
        return QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return button->iconSize().width();
    case PM_RadioButtonLabelSpacing:
    case PM_CheckBoxLabelSpacing:
        return qRound(0.4 * button->iconSize().width());
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}
