#include "game/guess.h"

#include "game/board.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/hidden_words.h"
#include "game/numbers.h"
#include "game/rows.h"
#include "game/start_of_game.h"

#include <algorithm>

namespace {

bool GuessHasEmptyBox(const Board& board)
{
    return std::any_of(std::begin(hiddenWords), std::end(hiddenWords),
        [&board](const HiddenWord& word) { return HasEmptyBox(board.*word.Guess); });
}

bool GuessIsRight(const Board& board)
{
    return std::all_of(
        std::begin(hiddenWords), std::end(hiddenWords), [&board](const HiddenWord& word) {
            return Spell(board.*word.Guess) == board.HiddenWords(word.Number);
        });
}

std::string ResultText(const Board& board)
{
    const double mine = NumberOf(board.MyScore.Text);
    const double yours = NumberOf(board.YourScore.Text);
    if (mine > yours)
        return "I win with a Score Of:" + PaddedForm(mine);
    if (mine < yours)
        return "You win with a Score Of:" + PaddedForm(yours);
    return "It's a draw: " + PaddedForm(yours) + " points each";
}

} // namespace

// "Make A Guess"
void Command7_Click(Game& game)
{
    Board& board = game.board;
    if (GuessHasEmptyBox(board)) {
        game.view.ShowMessage("Please fill all the letter Boxes Below!");
        return;
    }
    if (!GuessIsRight(board)) {
        game.view.ShowMessage("Sorry, but one or more of your words is wrong");
        return;
    }
    game.view.ShowMessage("CORRECT!! Well Done");
    board.YourScore.Text = PlainForm(2 * NumberOf(board.YourScore.Text));
    game.view.ShowMessage(ResultText(board));
    OfferAnotherGame(game);
    for (Frame* frame : GameFrames(board))
        frame->Visible = false;
    for (const HiddenWord& word : hiddenWords)
        Empty(board.*word.Guess);
}
