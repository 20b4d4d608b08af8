#include "game/moving_letters.h"

#include "game/board.h"
#include "game/chance.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/rows.h"

#include <utility>

namespace {

void LetGo(Board& board)
{
    board.HeldLetter.clear();
    board.HeldFlag = false;
    board.HeldIndex = 0;
}

} // namespace

// A go that was passed in the middle of a laying out leaves letters above the row. They go on into
// fixed places, so a letter moved meanwhile would be written over.
bool NothingWaitsAbove(const Board& board)
{
    return !HoldsLetters(board.Text2);
}

// An empty box can be lifted too, and takes a letter from the swap row.
bool LetterIsHeld(const Board& board)
{
    return board.HeldIndex >= 1;
}

// A gap would move with the letters, and the letter that belongs there would not.
bool RowIsFull(const Board& board)
{
    return !HasEmptyBox(board.Text1);
}

bool SwapRowTakesClicks(const Board& board)
{
    return board.SwapLetters(1).Enabled;
}

// After "+" the red letter turns with the row. A laying out disables "+" as well, but then "Lay Out
// Word" is disabled with it.
bool RedLetterTurnsToo(const Board& board)
{
    return !board.Command16.Enabled && board.Command9.Enabled;
}

// A box of "Your Letters": lifts its letter, or puts down the one in the hand.
void Text1_Click(Game& game, std::int16_t Index)
{
    Board& board = game.board;
    if (!NothingWaitsAbove(board))
        return;
    if (board.HeldLetter.empty()) {
        board.HeldLetter = board.Text1(Index).Text;
        board.Text1(Index).Text.clear();
        board.HeldFlag = true;
        board.HeldIndex = Index;
    } else {
        board.Text1(board.HeldIndex).Text = board.Text1(Index).Text;
        board.Text1(Index).Text = board.HeldLetter;
        LetGo(board);
    }
}

// A box of "Swap Letters": exchanges the letter in the hand with its own, once a go.
void SwapLetters_Click(Game& game, std::int16_t Index)
{
    Board& board = game.board;
    if (!LetterIsHeld(board))
        return;
    board.Text1(board.HeldIndex).Text = board.SwapLetters(Index).Text;
    board.SwapLetters(Index).Text = board.HeldLetter;
    LetGo(board);
    Disable(board.SwapLetters);
    game.view.RefreshWindow();
}

// "<"
void Command4_Click(Game& game)
{
    Board& board = game.board;
    if (!RowIsFull(board))
        return;
    for (int i = 1; i < lettersPerWord; ++i)
        std::swap(board.Text1(i).Text, board.Text1(i + 1).Text);
    if (RedLetterTurnsToo(board))
        std::swap(board.Text1(lettersPerWord).Text, board.SwapLetters(1).Text);
}

// ">"
void Command5_Click(Game& game)
{
    Board& board = game.board;
    if (!RowIsFull(board))
        return;
    for (int i = lettersPerWord - 1; i >= 1; --i)
        std::swap(board.Text1(i).Text, board.Text1(i + 1).Text);
    if (RedLetterTurnsToo(board))
        std::swap(board.Text1(1).Text, board.SwapLetters(1).Text);
}

// "+": gives up this go's exchange, and the red letter turns with the row.
void Command16_Click(Game& game)
{
    game.board.Command16.Enabled = false;
    Disable(game.board.SwapLetters);
}

// "Mix Letters"
void Command6_Click(Game& game)
{
    Board& board = game.board;
    if (!RowIsFull(board))
        return;
    std::string pool = Spell(board.Text1);
    for (LetterBox& box : board.Text1)
        box.Text = TakeLetter(game.platform, pool);
}

// "Rotate Swap Letters"
void Command15_Click(Game& game)
{
    Board& board = game.board;
    if (!SwapRowTakesClicks(board))
        return;
    for (int i = 1; i < lettersPerWord; ++i)
        std::swap(board.SwapLetters(i).Text, board.SwapLetters(i + 1).Text);
}
