#include "game/claim.h"

#include "game/board.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/numbers.h"
#include "game/start_of_game.h"
#include "lexicon/letters.h"

namespace {

void RevealAllLetters(Board& board)
{
    for (int k = 1; k <= lettersPerWord; ++k) {
        board.Text6(k).Text = board.Word1(k).Text = LetterOf(board.HiddenWords(1), k);
        board.Text7(k).Text = board.Word2(k).Text = LetterOf(board.HiddenWords(2), k);
        board.Text8(k).Text = board.Word3(k).Text = LetterOf(board.HiddenWords(3), k);
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
