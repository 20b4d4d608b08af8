#include "game/lay_out_word.h"

#include "game/board.h"
#include "game/game.h"
#include "game/moving_letters.h"
#include "game/rows.h"

#include <utility>

// "Lay Out Word": the letters go up, and wait there to be placed one by one.
void Command9_Click(Game& game)
{
    Board& board = game.board;
    if (!RowIsFull(board))
        return;
    for (Button* button : ArrangingButtons(board))
        button->Enabled = false;
    Disable(board.Text1);
    for (int i = 1; i <= lettersPerWord; ++i)
        board.Text2(i).Text = std::exchange(board.Text1(i).Text, "");
    board.LayOutNext = 1;
}

// A box above "Lay Out Word": places its letter in the next box of "Your Letters".
void Text2_Click(Game& game, std::int16_t Index)
{
    Board& board = game.board;
    if (!LetterWaits(board, Index))
        return;
    board.Text1(board.LayOutNext).Text = std::exchange(board.Text2(Index).Text, "");
    ++board.LayOutNext;
    if (board.LayOutNext > lettersPerWord)
        EnableArranging(board);
}

bool LetterWaits(const Board& board, std::int16_t Index)
{
    return !board.Text2(Index).Text.empty();
}
