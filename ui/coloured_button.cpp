#include "ui/coloured_button.h"

#include "ui/flat_box.h"

void ColouredButton::paintEvent(QPaintEvent* /*event*/)
{
    DrawFlatBox(*this,
        {.ground = QPalette::Button,
            .ink = QPalette::ButtonText,
            .text = text(),
            .pressed = isDown()});
}
