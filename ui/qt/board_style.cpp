#include "ui/qt/board_style.h"

#include <QAbstractButton>

BoardStyle::BoardStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
}

int BoardStyle::pixelMetric(
    PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            return button->iconSize().width(); // which none has; it is set to that of the mark
        [[fallthrough]];
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}
