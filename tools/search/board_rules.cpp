#include "tools/search/board_rules.h"

#include "game/board.h"
#include "game/numbers.h"
#include "game/rows.h"

#include <algorithm>
#include <utility>

namespace {

std::string Sorted(std::string letters)
{
    std::ranges::sort(letters);
    return letters;
}

bool LettersAreThoseOfTheHiddenWords(const Board& board)
{
    return Sorted(board.HiddenWords(1) + board.HiddenWords(2) + board.HiddenWords(3))
        == Sorted(Spell(board.MyLetters) + Spell(board.Text1) + Spell(board.Text2)
            + Spell(board.SwapLetters) + board.HeldLetter);
}

bool BonusIsTenTimesTheUsedWords(const Board& board)
{
    const std::int16_t count = board.List1.ListCount();
    return board.Text9.Text == PaddedForm(10.0 * count) || (count == 0 && board.Text9.Text == "0");
}

bool LedgerIsTheList(const Board& board)
{
    if (board.UsedCount != std::min<int>(board.List1.ListCount(), 250))
        return false;
    return std::equal(board.UsedWords.begin() + 1, board.UsedWords.begin() + 1 + board.UsedCount,
        board.List1.Words().begin());
}

bool ShownLettersAreHidden(const Board& board)
{
    const std::pair<const LetterRow*, const std::string*> words[]
        = {{&board.Word1, &board.HiddenWords(1)}, {&board.Word2, &board.HiddenWords(2)},
            {&board.Word3, &board.HiddenWords(3)}};
    for (const auto& [row, word] : words) {
        for (int k = 1; k <= 6; ++k) {
            const std::string& shown = (*row)(k).Text;
            if (!shown.empty() && shown[0] != (*word)[static_cast<std::size_t>(k) - 1])
                return false;
        }
    }
    return true;
}

std::string Letters(const LetterRow& row)
{
    std::string letters;
    for (const LetterBox& box : row)
        letters += box.Text.empty() ? "." : box.Text;
    return letters;
}

} // namespace

std::string FindFault(const Board& board)
{
    const std::pair<bool, const char*> rules[] = {
        {LettersAreThoseOfTheHiddenWords(board), "the letters are not those of the hidden words"},
        {board.HeldFlag == (board.HeldIndex != 0) && board.HeldLetter.size() <= board.HeldFlag,
            "the held letter contradicts itself"},
        {BonusIsTenTimesTheUsedWords(board), "the bonus is not ten times the used words"},
        {LedgerIsTheList(board), "the ledger is not the list of used words"},
        {board.CandidateCount >= 300 && board.CandidateCount <= 2000,
            "there are too few candidates or too many"},
        {board.FruitlessSwaps >= 0 && board.FruitlessSwaps <= 4, "fruitless goes are miscounted"},
        {NumberOf(board.YourScore.Text) >= 0 && NumberOf(board.MyScore.Text) >= 0,
            "a score is below 0"},
        {ShownLettersAreHidden(board), "a letter on view is not that of its word"},
    };
    const auto* broken = std::ranges::find(rules, false, &std::pair<bool, const char*>::first);
    return broken == std::end(rules) ? "" : broken->second;
}

std::string Line(const Board& board)
{
    return "you=" + Letters(board.Text1) + " me=" + Letters(board.MyLetters)
        + " swap=" + Letters(board.SwapLetters) + " up=" + Letters(board.Text2)
        + " held=" + board.HeldLetter + std::to_string(board.HeldIndex)
        + " you:" + board.YourScore.Text + " me:" + board.MyScore.Text;
}
