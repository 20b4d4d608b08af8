#include "game/computer_go.h"

#include "game/board.h"
#include "game/chance.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/start_of_game.h"
#include "game/word_search.h"

#include <algorithm>
#include <utility>

namespace {

// Tries every exchange with the swap row; true when one made a word, which has been played and
// followed by a deal. Otherwise every exchange has been put back.
bool TryAllExchanges(Game& game)
{
    Board& board = game.board;
    for (int i = 1; i <= lettersPerWord; ++i) {
        board.SwapLetters(i).Enabled = true;
        for (int j = 1; j <= lettersPerWord; ++j) {
            // Meant: two equal letters are exchanged too. Only such a trial finds a word that
            // stands in the row already.
            std::swap(board.MyLetters(i).Text, board.SwapLetters(j).Text);
            SearchForWord(game);
            if (board.ComputerScored)
                return true;
            std::swap(board.MyLetters(i).Text, board.SwapLetters(j).Text);
        }
    }
    return false;
}

bool AllLettersEqual(const Board& board)
{
    const auto isFirst
        = [&board](const LetterBox& box) { return box.Text == board.MyLetters(1).Text; };
    return std::all_of(board.MyLetters.begin(), board.MyLetters.end(), isFirst)
        && std::all_of(board.SwapLetters.begin(), board.SwapLetters.end(), isFirst);
}

void ExchangeAtRandom(Game& game)
{
    Board& board = game.board;
    if (AllLettersEqual(board))
        return; // no draw would ever find two different letters
    int p = 0;
    int q = 0;
    do {
        p = DrawNumber(game.platform, lettersPerWord);
        q = DrawNumber(game.platform, lettersPerWord);
    } while (board.MyLetters(p).Text == board.SwapLetters(q).Text);
    std::swap(board.MyLetters(p).Text, board.SwapLetters(q).Text);
    ++board.FruitlessSwaps;
    if (board.Check1 == 1) {
        game.view.ShowMessage("I have Swapped a Letter : " + board.SwapLetters(q).Text
                + " for the:-" + board.MyLetters(p).Text,
            "Computer Swap");
    }
}

// With no word in reach: an exchange, or a jumble on every fourth fruitless go at even odds.
void MakeFallbackMove(Game& game)
{
    Board& board = game.board;
    const bool jumble = DrawNumber(game.platform, 2) == 2;
    if (board.FruitlessSwaps == 3 && jumble) {
        DealLetters(game);
        return;
    }
    if (board.FruitlessSwaps == 4)
        board.FruitlessSwaps = 0;
    ExchangeAtRandom(game);
}

} // namespace

// No button: the computer's go
void Command8_Click(Game& game)
{
    Board& board = game.board;
    board.Label5.Visible = false;
    board.Command16.Enabled = true;
    if (!TryAllExchanges(game))
        MakeFallbackMove(game);
    board.Label5.Visible = true;
}
