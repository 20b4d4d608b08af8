// The game as it runs: a board, a view, a platform, and the window that they meet in.
#pragma once

#include "game/board.h"
#include "game/game.h"
#include "ui/qt/installed.h"
#include "ui/qt/main_window.h"
#include "ui/system_platform.h"
#include "ui/view.h"

struct Program {
    Program()
        : game{board, view, platform, PlaceOfWordList()}
        , window(game)
    {
        view.PlayIn(window.InSession());
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Board board;
    View view;
    SystemPlatform platform;
    Game game;
    MainWindow window;
};
