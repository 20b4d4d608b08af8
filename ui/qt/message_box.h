// The boxes that the game speaks and asks with.
#pragma once

#include "game/game_view.h"
#include "ui/message.h"

class QWidget;

class Session;

// Opens a box over the window and waits for the button that answers it. Where a program may choose
// the place of its windows, it stands where ui/message.h says, and goes along as the board becomes
// another size.
Answer AskPlayer(QWidget& window, Session& session, const Board& board, const Scale& scale,
    const Message& message);
