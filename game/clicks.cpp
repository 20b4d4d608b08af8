#include "game/clicks.h"

#include "game/board.h"
#include "game/buying_letters.h"
#include "game/ending_a_go.h"
#include "game/game.h"
#include "game/give_in.h"
#include "game/guess.h"
#include "game/lay_out_word.h"
#include "game/moving_letters.h"
#include "game/start_of_game.h"

namespace {

template <auto frame> bool In(const Board& board, std::int16_t /*Index*/)
{
    return (board.*frame).Visible;
}

// The red letter stands with the player's letters, the rest of its row in a frame of their own.
bool InFrame3Or4(const Board& board, std::int16_t Index)
{
    return Index == 1 ? board.Frame4.Visible : board.Frame3.Visible;
}

bool Always(const Board& /*board*/, std::int16_t /*Index*/)
{
    return true;
}

template <auto button> bool ButtonFlag(const Board& board, std::int16_t /*Index*/)
{
    return (board.*button).Enabled;
}

template <auto row> bool BoxFlag(const Board& board, std::int16_t Index)
{
    return (board.*row)(Index).Enabled;
}

template <auto handler> void Plain(Game& game, std::int16_t /*Index*/)
{
    handler(game);
}

constexpr auto inFrame1 = In<&Board::Frame1>; // the level panel
constexpr auto inFrame2 = In<&Board::Frame2>; // "The Words (Buy Letters)"
constexpr auto inFrame4 = In<&Board::Frame4>; // "Your Letters + Score"

constexpr int boxes = lettersPerWord; // of a row

// Control, boxes, on view, enabled, handler.
constexpr Click clicks[] = {
    {"Option1", levels, inFrame1, Always, Option1_Click},            // "Level 1" to "Level 6"
    {"Command1", 0, inFrame1, Always, Plain<Command1_Click>},        // "OK"
    {"Text1", boxes, inFrame4, BoxFlag<&Board::Text1>, Text1_Click}, // a box of "Your Letters"
    {"SwapLetters", boxes, InFrame3Or4, BoxFlag<&Board::SwapLetters>,
        SwapLetters_Click}, // a box of "Swap Letters"
    {"Command4", 0, inFrame4, ButtonFlag<&Board::Command4>, Plain<Command4_Click>}, // "<"
    {"Command5", 0, inFrame4, ButtonFlag<&Board::Command5>, Plain<Command5_Click>}, // ">"
    {"Command6", 0, inFrame4, ButtonFlag<&Board::Command6>, Plain<Command6_Click>}, // "Mix Letters"
    {"Command15", 0, inFrame4, Always, Plain<Command15_Click>}, // "Rotate Swap Letters"
    {"Command16", 0, inFrame4, ButtonFlag<&Board::Command16>, Plain<Command16_Click>}, // "+"
    {"Command9", 0, inFrame4, ButtonFlag<&Board::Command9>,
        Plain<Command9_Click>},                                      // "Lay Out Word"
    {"Text2", boxes, inFrame4, BoxFlag<&Board::Text2>, Text2_Click}, // a box above "Lay Out Word"
    {"Command3", 0, inFrame4, Always, Plain<Command3_Click>},        // "Submit Word"
    {"Command13", 0, inFrame4, Always, Plain<Command13_Click>},      // "Pass"
    {"Command14", 0, inFrame4, Always, Plain<Command14_Click>},      // "Jumble"
    {"Word1", boxes, inFrame2, BoxFlag<&Board::Word1>, Word1_Click}, // a box of hidden word 1
    {"Word2", boxes, inFrame2, BoxFlag<&Board::Word2>, Word2_Click}, // a box of hidden word 2
    {"Word3", boxes, inFrame2, BoxFlag<&Board::Word3>, Word3_Click}, // a box of hidden word 3
    {"Command7", 0, inFrame2, Always, Plain<Command7_Click>},        // "Make A Guess"
    {"Command10", 0, inFrame2, Always, Plain<Command10_Click>},      // "Give In"
};

} // namespace

std::span<const Click> Clicks()
{
    return clicks;
}

const Click* FindClick(std::string_view control)
{
    for (const Click& click : clicks)
        if (control == click.Control)
            return &click;
    return nullptr;
}

bool Deliver(Game& game, const Click& click, std::int16_t Index)
{
    if (!click.OnView(game.board, Index) || !click.Enabled(game.board, Index))
        return false;
    click.Handler(game, Index);
    return true;
}
