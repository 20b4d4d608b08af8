#include "ui/qt/level_option.h"

#include "ui/qt/box_look.h"

#include <QPainter>

// The style marks the focus too faintly to be seen on brick.
void LevelOption::paintEvent(QPaintEvent* event)
{
    QRadioButton::paintEvent(event);
    if (HasRing(*this))
        QPainter(this).fillRect(0, height() - 2, width(), 2, palette().color(foregroundRole()));
}
