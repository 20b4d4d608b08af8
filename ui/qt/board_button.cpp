#include "ui/qt/board_button.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

void BoardButton::paintEvent(QPaintEvent* /*event*/)
{
    BoxLook look = look_;
    look.pressed = isDown();
    look.heavy = heavy_ || isDefault(); // of a message
    DrawBox(*this, look, QPalette::Button, QPalette::ButtonText);
}

// The style's own mark of the focus is left out: here it is the ring that tiles have.
void BoardCheck::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.state &= ~QStyle::State_HasFocus;
    style()->drawControl(QStyle::CE_CheckBox, &option, &painter, this);
    if (HasRing(*this))
        DrawFocusRing(painter, rect(), 1);
}
