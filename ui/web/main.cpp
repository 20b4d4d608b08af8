// The program on a page: a board, a view, a platform and the page that they meet in.
#include "game/board.h"
#include "game/game.h"
#include "ui/system_platform.h"
#include "ui/view.h"
#include "ui/web/page.h"
#include "ui/web/word_list.h"

namespace {

struct Program {
    Program() { view.PlayIn(page.InSession()); }

    Board board;
    View view;
    SystemPlatform platform;
    Game game{board, view, platform, WordListPath()};
    Page page{game};
};

} // namespace

// Meant: never taken down, since the page calls it as long as it is there.
Page& ThePage()
{
    static auto& program = *new Program;
    return program.page;
}
