// The game as it runs: a board, a view, a platform, and the window that they meet in.
#pragma once

#include "game/board.h"
#include "game/game.h"
#include "ui/installed.h"
#include "ui/main_window.h"
#include "ui/qt_view.h"
#include "ui/system_platform.h"

struct Program {
    Program()
        : game{board, view, platform, PlaceOfWordList()}
        , window(game)
    {
        view.PlayIn(window);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Board board;
    QtView view;
    SystemPlatform platform;
    Game game;
    MainWindow window;
};
