#include "headless/board_check.h"

#include "game/board.h"
#include "game/hidden_words.h"
#include "game/numbers.h"
#include "game/rows.h"
#include "lexicon/letters.h"

#include <algorithm>
#include <span>
#include <utility>

namespace {

using Rule = std::pair<bool, const char*>;

std::string FirstBroken(std::span<const Rule> rules)
{
    const auto broken = std::ranges::find(rules, false, &Rule::first);
    return broken == rules.end() ? "" : broken->second;
}

std::string Sorted(std::string letters)
{
    std::ranges::sort(letters);
    return letters;
}

bool LettersAreThoseOfTheHiddenWords(const Board& board)
{
    return Sorted(HiddenLetters(board))
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
    if (board.UsedCount != std::min(board.List1.ListCount(), ledgerSlots))
        return false;
    return std::equal(board.UsedWords.begin() + 1, board.UsedWords.begin() + 1 + board.UsedCount,
        board.List1.Words().begin());
}

bool ShownLettersAreHidden(const Board& board)
{
    for (const HiddenWord& word : hiddenWords) {
        for (int k = 1; k <= lettersPerWord; ++k) {
            const std::string& shown = (board.*word.Shown)(k).Text;
            if (!shown.empty() && shown != LetterOf(board.HiddenWords(word.Number), k))
                return false;
        }
    }
    return true;
}

auto Filled(const LetterRow& row)
{
    return lettersPerWord - std::ranges::count(row, "", &LetterBox::Text);
}

std::string FaultOfView(const Board& board, bool between)
{
    const bool shown = board.Frame4.Visible;
    const auto alike = [shown](const Frame& frame) { return frame.Visible == shown; };
    const Rule rules[] = {
        {alike(board.Frame2) && alike(board.Frame3) && alike(board.Frame5) && alike(board.Frame7)
                && alike(board.Frame9),
            "half of the board is on view"},
        {board.Frame1.Visible == board.Command2.Visible, "half of the level panel is on view"},
        {!between || shown || board.Frame1.Visible, "the window is empty"},
        {!between || board.Label5.Visible, "nobody's go"},
    };
    return FirstBroken(rules);
}

std::string FaultOfGame(const Board& board, bool between)
{
    const auto up = Filled(board.Text2);
    const Rule rules[] = {
        {LettersAreThoseOfTheHiddenWords(board), "the letters are not those of the hidden words"},
        {board.HeldFlag == (board.HeldIndex != 0) && board.HeldFlag != board.HeldLetter.empty(),
            "the held letter contradicts itself"},
        {up + Filled(board.Text1) + board.HeldFlag == lettersPerWord,
            "not six letters to the player"},
        {up == 0 || up + board.LayOutNext == lettersPerWord + 1, "a laying out has lost its place"},
        {!HasEmptyBox(board.MyLetters) && !HasEmptyBox(board.SwapLetters), "an empty box"},
        {std::ranges::count(board.SwapLetters, true, &LetterBox::Enabled) % lettersPerWord == 0,
            "half of the swap row takes clicks"},
        {BonusIsTenTimesTheUsedWords(board), "the bonus is not ten times the used words"},
        {LedgerIsTheList(board), "the ledger is not the list of used words"},
        {(!between && board.CandidateCount == 0)
                || (board.CandidateCount >= fewestCandidates
                    && board.CandidateCount <= mostCandidates),
            "there are too few candidates or too many"},
        {board.FruitlessSwaps >= 0 && board.FruitlessSwaps <= 4, "fruitless goes are miscounted"},
        {NumberOf(board.YourScore.Text) >= 0 && NumberOf(board.MyScore.Text) >= 0,
            "a score is below 0"},
        {ShownLettersAreHidden(board), "a letter on view is not that of its word"},
    };
    return FirstBroken(rules);
}

} // namespace

std::string FindFault(const Board& board, Moment moment)
{
    const bool between = moment == Moment::BetweenEvents;
    std::string fault = FaultOfView(board, between);
    if (fault.empty() && !board.HiddenWords(1).empty())
        fault = FaultOfGame(board, between);
    return fault;
}
