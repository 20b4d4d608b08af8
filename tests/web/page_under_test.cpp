// The page's program with chance and board set from outside, and a new one whenever it is asked
// for.
#include "game/board.h"
#include "game/computer_go.h"
#include "game/game.h"
#include "headless/board_text.h"
#include "headless/headless_platform.h"
#include "ui/view.h"
#include "ui/web/page.h"
#include "ui/web/word_list.h"

#include <emscripten.h>

#include <memory>

namespace {

class PlayedPage : public Page {
public:
    using Page::Page;
    int DoubleClickMilliseconds() const override { return 400; } // as without a window
};

struct Program {
    Program() { view.PlayIn(page.InSession()); }

    Board board;
    View view;
    HeadlessPlatform platform;
    Game game{board, view, platform, WordListPath()};
    PlayedPage page{game};
};

std::unique_ptr<Program> program;

} // namespace

Page& ThePage()
{
    return program->page;
}

extern "C" {

EMSCRIPTEN_KEEPALIVE void BeginAnew()
{
    program = std::make_unique<Program>();
    ThePage().Start();
}

EMSCRIPTEN_KEEPALIVE void SetParts(const char* parts)
{
    SetBoard(program->board, parts);
    ThePage().InSession().Show();
}

EMSCRIPTEN_KEEPALIVE void SetSeed(unsigned seed)
{
    program->platform = HeadlessPlatform(seed);
}

EMSCRIPTEN_KEEPALIVE void SetDraws(const float* draws, int count)
{
    program->platform.draws.assign(draws, draws + count);
}

EMSCRIPTEN_KEEPALIVE void TakeComputersGo()
{
    Command8_Click(program->game);
    ThePage().InSession().Show();
}

} // extern "C"
