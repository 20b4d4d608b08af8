#include "game/claim.h"

#include "game/board.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/hidden_words.h"
#include "game/numbers.h"
#include "game/start_of_game.h"
#include "lexicon/letters.h"

namespace {

void RevealAllLetters(Board& board)
{
    for (int k = 1; k <= lettersPerWord; ++k) {
        for (const HiddenWord& word : hiddenWords) {
            LetterBox& shown = (board.*word.Shown)(k);
            shown.Text = LetterOf(board.HiddenWords(word.Number), k);
            (board.*word.Guess)(k).Text = shown.Text;
        }
    }
}

} // namespace

void ClaimThreeWords(Game& game)
{
    Board& board = game.board;
    const double yourScore = NumberOf(board.YourScore.Text);
    const double claimed = (NumberOf(board.MyScore.Text) - claimPrice) * 2;
    if (yourScore > claimed)
        return;
    board.MyScore.Text = PlainForm(claimed);
    game.view.ShowMessage(std::string("I now know all three words")
        + (claimed > yourScore ? " I WIN!!" : " But You Still WIN!!"));
    RevealAllLetters(board);
    OfferAnotherGame(game);
}
