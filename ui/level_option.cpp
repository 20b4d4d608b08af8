#include "ui/level_option.h"

#include "ui/keys.h"

#include <QKeyEvent>
#include <QPainter>

// The style marks the focus too faintly to be seen on brick.
void LevelOption::paintEvent(QPaintEvent* event)
{
    QRadioButton::paintEvent(event);
    if (hasFocus())
        QPainter(this).fillRect(0, height() - 2, width(), 2, palette().color(foregroundRole()));
}

// Some desktops have Enter click an option; here it is for the window, which may start. An arrow
// key goes on from the level that is chosen, and with none chosen it chooses the one in focus.
void LevelOption::keyPressEvent(QKeyEvent* event)
{
    const bool arrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
    if (IsEnter(*event))
        event->ignore();
    else if (arrow && !isChecked())
        click();
    else
        QRadioButton::keyPressEvent(event);
}
