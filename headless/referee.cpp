#include "headless/referee.h"

#include "game/board.h"
#include "game/rows.h"
#include "headless/board_text.h"
#include "headless/headless_platform.h"

#include <algorithm>

namespace {

constexpr std::string_view computersWord = "Word Found: My Word:";

// A longer word goes by its first letters.
bool Spells(std::string row, std::string word)
{
    std::ranges::sort(row);
    std::ranges::sort(word);
    return std::ranges::includes(word, row);
}

} // namespace

void Referee::Begin()
{
    depth_ = 0;
    exchanged_ = false;
}

int Referee::BeforeClick(std::string_view control)
{
    const bool exchanges = control == "SwapLetters" && board_.HeldFlag;
    Require(!exchanges || !exchanged_, "a second exchange in one go");
    exchanged_ |= exchanges || control == "Command16";
    ++depth_;
    return repaints_;
}

void Referee::AfterClick(std::string_view control, int repaintsBefore)
{
    --depth_;
    // Who repaints before the work is done hands the go over, or begins a game.
    if (repaints_ != repaintsBefore && control != "SwapLetters") {
        exchanged_ = false;
        Require(board_.SwapLetters(1).Enabled || control == "Command3", "a go with no exchange");
    }
    AfterEvent();
}

bool Referee::Forbids(std::string_view control) const
{
    return depth_ > 0 && board_.CandidateCount == 0 && control.starts_with("Word");
}

void Referee::OnCall(const std::string& call)
{
    if (call == "repaint") {
        ++repaints_;
        AfterEvent();
    }
    if (call == "Quorvel2: Word Accepted")
        Require(interrupted_ || !InLedger(Spell(board_.Text1), 50), "a used word scores");
    if (call.starts_with(computersWord)) {
        const std::string word = call.substr(computersWord.size());
        Require(!InLedger(word, ledgerSlots), "the computer plays a used word");
        Require(Spells(Spell(board_.MyLetters), word), "not the computer's letters");
    }
}

void Referee::AfterEvent() const
{
    const std::string fault
        = FindFault(board_, depth_ > 0 ? Moment::InsideAnEvent : Moment::BetweenEvents);
    Require(fault.empty(), fault);
}

void Referee::AtEnd(const std::string& lastCall) const
{
    Require(lastCall.starts_with("New Game?") || lastCall.ends_with("C:\\ Directory (Folder)"),
        "the program ended for no reason");
}

void Referee::Require(bool holds, const std::string& rule) const
{
    if (!holds)
        throw Fault{rule + ": " + Line(board_)};
}

bool Referee::InLedger(const std::string& word, int slots) const
{
    const auto first = board_.UsedWords.begin();
    return std::find(first, first + slots + 1, word) != first + slots + 1;
}
