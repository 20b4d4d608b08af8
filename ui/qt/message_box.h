// The boxes that the game speaks and asks with.
#pragma once

#include "game/game_view.h"
#include "ui/message.h"

class QWidget;

// Opens a box over the window and waits for the button that answers it. The room is in pixels of the
// window; where a program may choose the place of its windows, the box stands there.
Answer AskPlayer(QWidget& window, const PixelRect& room, const Message& message);
