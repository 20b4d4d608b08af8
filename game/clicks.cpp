#include "game/clicks.h"

#include "game/board.h"
#include "game/buying_letters.h"
#include "game/ending_a_go.h"
#include "game/game.h"
#include "game/give_in.h"
#include "game/guess.h"
#include "game/hidden_words.h"
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

template <auto predicate> bool Holds(const Board& board, std::int16_t /*Index*/)
{
    return predicate(board);
}

template <int word> bool Hidden(const Board& board, std::int16_t Index)
{
    return LetterIsHidden(board, hiddenWords[word - 1], Index);
}

template <auto handler> void Plain(Game& game, std::int16_t /*Index*/)
{
    handler(game);
}

constexpr auto inFrame1 = In<&Board::Frame1>; // the level panel
constexpr auto inFrame2 = In<&Board::Frame2>; // "The Words (Buy Letters)"
constexpr auto inFrame4 = In<&Board::Frame4>; // "Your Letters + Score"

constexpr int boxes = lettersPerWord; // of a row

// Control, boxes, on view, enabled, works, handler.
constexpr Click clicks[] = {
    // "Level 1" to "Level 6"
    {"Option1", levels, inFrame1, Always, Always, Option1_Click},
    // "OK"
    {"Command1", 0, inFrame1, Always, Always, Plain<Command1_Click>},
    // a box of "Your Letters"
    {"Text1", boxes, inFrame4, BoxFlag<&Board::Text1>, Holds<NothingWaitsAbove>, Text1_Click},
    // a box of "Swap Letters"
    {"SwapLetters", boxes, InFrame3Or4, BoxFlag<&Board::SwapLetters>, Holds<LetterIsHeld>,
        SwapLetters_Click},
    // "<"
    {"Command4", 0, inFrame4, ButtonFlag<&Board::Command4>, Holds<RowIsFull>,
        Plain<Command4_Click>},
    // ">"
    {"Command5", 0, inFrame4, ButtonFlag<&Board::Command5>, Holds<RowIsFull>,
        Plain<Command5_Click>},
    // "Mix Letters"
    {"Command6", 0, inFrame4, ButtonFlag<&Board::Command6>, Holds<RowIsFull>,
        Plain<Command6_Click>},
    // "Rotate Swap Letters"
    {"Command15", 0, inFrame4, Always, Holds<SwapRowTakesClicks>, Plain<Command15_Click>},
    // "+"
    {"Command16", 0, inFrame4, ButtonFlag<&Board::Command16>, Always, Plain<Command16_Click>},
    // "Lay Out Word"
    {"Command9", 0, inFrame4, ButtonFlag<&Board::Command9>, Holds<RowIsFull>,
        Plain<Command9_Click>},
    // a box above "Lay Out Word"
    {"Text2", boxes, inFrame4, BoxFlag<&Board::Text2>, LetterWaits, Text2_Click},
    // "Submit Word"
    {"Command3", 0, inFrame4, Always, Always, Plain<Command3_Click>},
    // "Pass"
    {"Command13", 0, inFrame4, Always, Always, Plain<Command13_Click>},
    // "Jumble"
    {"Command14", 0, inFrame4, Always, Always, Plain<Command14_Click>},
    // a box of hidden word 1
    {"Word1", boxes, inFrame2, BoxFlag<&Board::Word1>, Hidden<1>, Word1_Click},
    // a box of hidden word 2
    {"Word2", boxes, inFrame2, BoxFlag<&Board::Word2>, Hidden<2>, Word2_Click},
    // a box of hidden word 3
    {"Word3", boxes, inFrame2, BoxFlag<&Board::Word3>, Hidden<3>, Word3_Click},
    // "Make A Guess"
    {"Command7", 0, inFrame2, Always, Always, Plain<Command7_Click>},
    // "Give In"
    {"Command10", 0, inFrame2, Always, Always, Plain<Command10_Click>},
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
