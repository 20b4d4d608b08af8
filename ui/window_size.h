// The size of the window: it has the one, unless the desktop gives it a room of its own; and the
// scale and place of the board in it.
#pragma once

#include "ui/places.h"

#include <QSize>
#include <QTimer>

#include <functional>

struct Board;
class QWidget;

class WindowSize {
public:
    // Gives the window the size that it is built at. Tells of every change of the scale from then
    // on. The window and the board outlive this.
    WindowSize(QWidget& window, Board& board, std::function<void()> rescaled);

    const Scale& Present() const { return scale_; }

    // Maximised, in full screen, or where the desktop insists on a size, the board is as large as
    // the room. Otherwise holds the window at its one outer size, in whole pixels, never smaller
    // than its contents and never larger than the screen. Then tells the board the size.
    void Form_Resize();

private:
    bool HasRoomOfItsOwn() const;
    void FillRoom();
    void HoldOneSize();
    QSizeF RoomOnScreen();
    void ReadSize();

    QWidget& window_;
    Board& board_;
    std::function<void()> rescaled_;
    Scale scale_;
    QMetaObject::Connection ofScreen_; // to the one that the window is on
    QTimer later_;
    int refusals_ = 0; // of the one size, one after another, by a desktop that
    QSize insisted_;   // gives this one
};
