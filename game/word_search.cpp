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
#include <array>
#include <cassert>
#include <cmath>
#include <string_view>

namespace {

// Behind the last letter of a short word stands 0.
void FillSortBuffer(Board& board, std::string_view word)
{
    board.SortBuffer.fill(0);
    std::copy_n(
        word.begin(), std::min(word.size(), board.SortBuffer.size()), board.SortBuffer.begin());
}

// No branch depends on the letters: a go of the computer sorts up to 72,000 words.
void PutInOrder(unsigned char& left, unsigned char& right)
{
    const unsigned char less = std::min(left, right);
    right = std::max(left, right);
    left = less;
}

// One by one, since most words differ in the first. To compare all six at once is slower: it would
// wait for the sort to store the last of them.
bool HasSorted(const Board& board, const std::array<unsigned char, 6>& sorted)
{
    return std::ranges::mismatch(board.SortBuffer, sorted).in2 == sorted.end();
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
    const auto sortedRow = board.SortBuffer;
    const int span = SearchSpan(board);
    for (int k = 1; k <= span; ++k) {
        const std::string& candidate = board.Candidates(k);
        FillSortBuffer(board, candidate);
        SortLetters(board);
        if (!HasSorted(board, sortedRow))
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
    // Six letters are in order after these twelve steps, whatever order they came in.
    auto [a, b, c, d, e, f] = board.SortBuffer;
    PutInOrder(a, f);
    PutInOrder(b, d);
    PutInOrder(c, e);
    PutInOrder(b, c);
    PutInOrder(d, e);
    PutInOrder(a, d);
    PutInOrder(c, f);
    PutInOrder(a, b);
    PutInOrder(c, d);
    PutInOrder(e, f);
    PutInOrder(b, c);
    PutInOrder(d, e);
    board.SortBuffer = {a, b, c, d, e, f};
}
