#include "ui/board_button.h"

#include "ui/box_look.h"
#include "ui/keys.h"

#include <QKeyEvent>
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

// Enter clicks, as it does a button.
void BoardCheck::keyPressEvent(QKeyEvent* event)
{
    if (IsEnter(*event))
        click();
    else
        QCheckBox::keyPressEvent(event);
}
