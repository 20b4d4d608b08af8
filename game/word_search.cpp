#include "game/word_search.h"

#include "game/board.h"
#include "game/claim.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/numbers.h"
#include "game/rows.h"
#include "game/scoring.h"
#include "game/start_of_game.h"
#include "lexicon/letters.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <string_view>

namespace {

// After the last letter of a short word stands 0; of a long one, the first six letters count.
void FillSortBuffer(Board& board, std::string_view word)
{
    board.SortBuffer.fill(0);
    for (auto slot = board.SortBuffer.begin(); slot != board.SortBuffer.end() && !word.empty();
        ++slot)
        *slot = TakeFirstLetter(word);
}

// The number of candidates that the level lets the computer look at. Halves go to the even number,
// which is how the default rounding mode of nearbyint has it.
int SearchSpan(const Board& board)
{
    assert(board.Level >= 1);
    const int divisor = board.Level > 1 ? board.Level * 2 : board.Level;
    return static_cast<int>(std::nearbyint(static_cast<double>(board.CandidateCount) / divisor));
}

void PlayWord(Game& game, const std::string& word)
{
    Board& board = game.board;
    game.view.ShowMessage("My Word:" + word, "Word Found");
    board.List1.AddItem(word);
    AddPoints(board, board.MyScore);
    if (NumberOf(board.MyScore.Text) > claimPrice)
        ClaimThreeWords(game);
    board.ComputerScored = true;
    AddUsedWord(board, board.ProbeWord);
    RaiseBonus(board);
    Enable(board.SwapLetters);
    DealLetters(game);
}

} // namespace

void SearchForWord(Game& game)
{
    Board& board = game.board;
    const std::string row = Spell(board.MyLetters);
    const std::uint64_t bitsOfRow = BitsOf(row);
    FillSortBuffer(board, row);
    SortLetters(board);
    const auto sortedRow = board.SortBuffer;
    const int span = SearchSpan(board);
    for (int k = 1; k <= span; ++k) {
        const std::string& candidate = board.Candidates(k);
        // The same letters take the same number of bytes. Few candidates come past this line.
        if (BitsOf(std::string_view(candidate).substr(0, row.size())) != bitsOfRow)
            continue;
        FillSortBuffer(board, candidate);
        SortLetters(board);
        if (board.SortBuffer != sortedRow)
            continue;
        board.ProbeWord = candidate;
        CheckWordUsed(board);
        if (!board.ProbeUsed) {
            PlayWord(game, candidate);
            return;
        }
    }
    board.ComputerScored = false;
}

void SortLetters(Board& board)
{
    std::sort(board.SortBuffer.begin(), board.SortBuffer.end());
}
