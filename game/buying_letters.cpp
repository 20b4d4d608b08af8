#include "game/buying_letters.h"

#include "game/board.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/numbers.h"
#include "lexicon/letters.h"

namespace {

constexpr double price = 100;

void BuyLetter(Game& game, const std::string& hiddenWord, LetterBox& bought, LetterBox& guessed,
    std::int16_t Index)
{
    NumberBox& score = game.board.YourScore;
    if (!bought.Text.empty())
        return;
    if (NumberOf(score.Text) < price) {
        game.view.ShowMessage("You can't buy letters");
        return;
    }
    bought.Text = LetterOf(hiddenWord, Index);
    guessed.Text = bought.Text;
    score.Text = PlainForm(NumberOf(score.Text) - price);
}

} // namespace

// A box of "The Words (Buy Letters)", first word
void Word1_Click(Game& game, std::int16_t Index)
{
    Board& board = game.board;
    BuyLetter(game, board.HiddenWords(1), board.Word1(Index), board.Text6(Index), Index);
}

// A box of "The Words (Buy Letters)", second word
void Word2_Click(Game& game, std::int16_t Index)
{
    Board& board = game.board;
    BuyLetter(game, board.HiddenWords(2), board.Word2(Index), board.Text7(Index), Index);
}

// A box of "The Words (Buy Letters)", third word
void Word3_Click(Game& game, std::int16_t Index)
{
    Board& board = game.board;
    BuyLetter(game, board.HiddenWords(3), board.Word3(Index), board.Text8(Index), Index);
}
