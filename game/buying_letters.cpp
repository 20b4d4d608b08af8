#include "game/buying_letters.h"

#include "game/board.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/hidden_words.h"
#include "game/numbers.h"
#include "lexicon/letters.h"

namespace {

void BuyLetter(Game& game, const HiddenWord& word, std::int16_t Index)
{
    Board& board = game.board;
    if (!LetterIsHidden(board, word, Index))
        return;
    NumberBox& score = board.YourScore;
    if (NumberOf(score.Text) < letterPrice) {
        game.view.ShowMessage("You can't buy letters");
        return;
    }
    LetterBox& bought = (board.*word.Shown)(Index);
    bought.Text = LetterOf(board.HiddenWords(word.Number), Index);
    (board.*word.Guess)(Index).Text = bought.Text;
    score.Text = PlainForm(NumberOf(score.Text) - letterPrice);
}

} // namespace

bool LetterIsHidden(const Board& board, const HiddenWord& word, std::int16_t Index)
{
    return (board.*word.Shown)(Index).Text.empty();
}

// A box of "The Words (Buy Letters)", first word
void Word1_Click(Game& game, std::int16_t Index)
{
    BuyLetter(game, hiddenWords[0], Index);
}

// A box of "The Words (Buy Letters)", second word
void Word2_Click(Game& game, std::int16_t Index)
{
    BuyLetter(game, hiddenWords[1], Index);
}

// A box of "The Words (Buy Letters)", third word
void Word3_Click(Game& game, std::int16_t Index)
{
    BuyLetter(game, hiddenWords[2], Index);
}
