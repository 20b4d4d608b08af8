#include "ui/qt/board_button.h"

#include "ui/qt/box_look.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

void BoardButton::paintEvent(QPaintEvent* /*event*/)
{
    const bool caption = !text().isEmpty();
    DrawBox(*this,
        {.ground = QPalette::Button,
            .ink = QPalette::ButtonText,
            .text = text(),
            .edge = !caption  ? Edge::Flat
                : isEnabled() ? Edge::Raised
                              : Edge::OutOfPlay,
            .faded = !isEnabled(),
            .pressed = isDown(),
            .heavy = heavy_});
}

// The style's own mark of the focus is left out: here it is the ring that tiles have.
void BoardCheck::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.state &= ~QStyle::State_HasFocus;
    style()->drawControl(QStyle::CE_CheckBox, &option, &painter, this);
    if (hasFocus())
        DrawFocusRing(painter, rect(), 1);
}
