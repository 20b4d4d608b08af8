#include "game/word_search.h"

#include "game/board.h"
#include "game/claim.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/numbers.h"
#include "game/rows.h"
#include "game/scoring.h"
#include "game/start_of_game.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <string_view>
#include <utility>

namespace {

// Six letters are in order after these twelve exchanges, whatever order they came in. No branch
// depends on a letter, and a go of the computer sorts up to 72,000 words.
constexpr std::pair<std::size_t, std::size_t> sortingNetwork[] = {
    {0, 5}, {1, 3}, {2, 4}, {1, 2}, {3, 4}, {0, 3}, {2, 5}, {0, 1}, {2, 3}, {4, 5}, {1, 2}, {3, 4}};

void FillSortBuffer(Board& board, std::string_view word)
{
    board.SortBuffer = {};
    const std::size_t count = std::min(word.size(), board.SortBuffer.Letters.size());
    std::copy_n(word.begin(), count, board.SortBuffer.Letters.begin());
    board.SortBuffer.Count = static_cast<int>(count);
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
    FillSortBuffer(board, Spell(board.MyLetters));
    SortLetters(board);
    const SortLettersBuffer sortedRow = board.SortBuffer;
    const int span = SearchSpan(board);
    for (int k = 1; k <= span; ++k) {
        const std::string& candidate = board.Candidates(k);
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
    auto& letters = board.SortBuffer.Letters;
    for (const auto& [left, right] : sortingNetwork) {
        const auto [less, greater] = std::pair(
            std::min(letters[left], letters[right]), std::max(letters[left], letters[right]));
        letters[left] = less;
        letters[right] = greater;
    }
}
