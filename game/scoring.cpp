#include "game/scoring.h"

#include "game/board.h"
#include "game/numbers.h"

namespace {

constexpr double pointsForWord = 50;

} // namespace

void ScoreWord(Board& board, NumberBox& side, const std::string& word)
{
    AddPoints(board, side);
    board.List1.AddItem(word);
    AddUsedWord(board, word);
    RaiseBonus(board);
}

void AddPoints(const Board& board, NumberBox& side)
{
    side.Text = PlainForm(NumberOf(side.Text) + pointsForWord + LeadingNumberOf(board.Text9.Text));
}

void AddUsedWord(Board& board, const std::string& word)
{
    // A full ledger keeps its words; the list, the bonus and the scores go on without it.
    if (board.UsedCount == ledgerSlots)
        return;
    ++board.UsedCount;
    board.UsedWords(board.UsedCount) = word;
}

void RaiseBonus(Board& board)
{
    board.Text9.Text = PaddedForm(10.0 * board.List1.ListCount());
}

void CheckWordUsed(Board& board)
{
    board.ProbeUsed = false;
    for (int slot = 0; slot <= board.UsedCount; ++slot) {
        if (board.UsedWords(slot) == board.ProbeWord)
            board.ProbeUsed = true;
    }
}
