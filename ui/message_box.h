// The boxes that the game speaks and asks with.
#pragma once

#include <QMessageBox>

// Opens a box with that text and title over the window and waits for the button that answers it:
// Ok, or Yes and No. Where a program may choose the place of its windows, the lower right corner of
// every box is that of the room, in pixels of the screen, and with it the place of its last button.
QMessageBox::StandardButton AskPlayer(QWidget& window, const QRect& room, const QString& text,
    const QString& title, QMessageBox::StandardButtons buttons);
