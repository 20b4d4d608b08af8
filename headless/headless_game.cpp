#include "headless/headless_game.h"

#include "game/clicks.h"
#include "game/computer_go.h"
#include "game/hidden_words.h"
#include "game/rows.h"
#include "game/start_of_game.h"
#include "headless/board_check.h"
#include "headless/board_text.h"

#include <algorithm>
#include <utility>

namespace {

// A longer word goes by its first letters.
bool Spells(std::string row, std::string word)
{
    std::ranges::sort(row);
    std::ranges::sort(word);
    return std::ranges::includes(word, row);
}

} // namespace

HeadlessGame::HeadlessGame(std::filesystem::path wordList, HeadlessPlatform chance, GameView* shown)
    : platform(std::move(chance))
    , game{board, shown != nullptr ? *shown : view, platform, std::move(wordList)}
{
    view.during = [this](const std::string& call) { OnCall(call); };
    HeadlessGame::StartProgram();
}

void HeadlessGame::StartProgram()
{
    board = Board{};
    view.answers.clear();
    pending_.clear();
    ended_ = exchanged_ = false;
    depth_ = 0;
    Form_Load(game);
}

void HeadlessGame::Play(const Event& event)
{
    if (!fault_.empty())
        return;
    if (event.when != When::Now) {
        pending_.push_back(event);
        return;
    }
    if (ended_)
        StartProgram();
    try {
        event.run(*this);
        RunPending(When::InRepaint);
        AfterEvent();
        CheckBoard();
    } catch (const ProgramEnded&) {
        ended_ = true;
        tell("end");
        const std::string& last = view.calls.back();
        if (checked_ && !last.starts_with("New Game? ") && !last.ends_with("Directory (Folder)"))
            Fail("the program ended for no reason");
    } catch (const Fault& fault) {
        Fail(fault.text);
    }
}

void HeadlessGame::Click(std::string_view control, std::int16_t index)
{
    const ::Click& click = *FindClick(control);
    // A letter of the words before that is bought while the next game starts stays in its box. This
    // is known, and who looks for other faults does not try it.
    const bool known = depth_ > 0 && board.CandidateCount == 0 && control.starts_with("Word");
    if (!click.OnView(board, index) || !click.Enabled(board, index) || (checked_ && known)) {
        std::string refused("refused ");
        refused.append(control).append(index > 0 ? 1 : 0, ':');
        tell(index > 0 ? refused + std::to_string(index) : refused);
        return;
    }
    const bool exchanges = control == "SwapLetters" && board.HeldFlag;
    Require(!exchanges || !exchanged_, "a second exchange in one go");
    exchanged_ |= exchanges || control == "Command16";
    const int repaints = repaints_;
    const std::size_t calls = view.calls.size();
    const bool works = !checked_ || click.Works(board, index);
    const auto before = works ? decltype(PartsOf(board))() : PartsOf(board);
    ++depth_;
    DeliverClick(click, index);
    --depth_;
    Require(works || (PartsOf(board) == before && view.calls.size() == calls),
        "a click does what it was not said to do");
    // Who repaints before the work is done hands the go over, or begins a game.
    if (repaints_ != repaints && control != "SwapLetters") {
        exchanged_ = false;
        Require(board.SwapLetters(1).Enabled || control == "Command3", "a go with no exchange");
    }
    CheckBoard();
}

void HeadlessGame::DeliverClick(const ::Click& click, std::int16_t index)
{
    Deliver(game, click, index);
}

void HeadlessGame::Type(std::string_view row, int index, const std::string& text)
{
    (board.*FindGuessed(row)->Guess)(index).Text = text;
}

void HeadlessGame::Tick(bool ticked)
{
    board.Check1 = ticked ? 1 : 0;
}

void HeadlessGame::PlayComputersGo()
{
    Command8_Click(game);
}

void HeadlessGame::Set(const std::string& parts)
{
    SetBoard(board, parts);
}

std::vector<std::pair<std::string, std::string>> HeadlessGame::Parts() const
{
    return PartsOf(board);
}

void HeadlessGame::UseList(const std::string& bytes)
{
    game.lexicon = list_.emplace(bytes).Path();
}

void HeadlessGame::UseNoList()
{
    UseList("");
    std::filesystem::remove(game.lexicon);
}

void HeadlessGame::RunPending(When when)
{
    for (auto left = std::ranges::count(pending_, when, &Event::when); left > 0; --left) {
        const auto next = std::ranges::find(pending_, when, &Event::when);
        if (next == pending_.end())
            return;
        const Event event = std::move(*next);
        pending_.erase(next);
        event.run(*this);
    }
}

void HeadlessGame::OnCall(const std::string& call)
{
    tell(call);
    CheckCall(call);
    if (call != "repaint")
        return RunPending(When::InMessage);
    ++repaints_;
    const bool interrupted = std::ranges::count(pending_, When::InRepaint, &Event::when) > 0;
    RunPending(When::InRepaint);
    interrupted_ = interrupted;
}

void HeadlessGame::Fail(const std::string& fault)
{
    fault_ = fault;
    tell("fault: " + fault);
}

void HeadlessGame::Require(bool holds, const std::string& rule) const
{
    if (checked_ && !holds)
        throw Fault{rule + ": " + Line(board)};
}

void HeadlessGame::CheckBoard() const
{
    if (!checked_)
        return;
    const std::string fault
        = FindFault(board, depth_ > 0 ? Moment::InsideAnEvent : Moment::BetweenEvents);
    Require(fault.empty(), fault);
}

void HeadlessGame::CheckCall(const std::string& call) const
{
    constexpr std::string_view computersWord = "Word Found: My Word:";
    if (call == "repaint")
        CheckBoard();
    if (call == "Quorvel2: Word Accepted")
        Require(interrupted_ || !InLedger(Spell(board.Text1), 50), "a used word scores");
    if (call.starts_with(computersWord)) {
        const std::string word = call.substr(computersWord.size());
        Require(!InLedger(word, ledgerSlots), "the computer plays a used word");
        Require(Spells(Spell(board.MyLetters), word), "not the computer's letters");
    }
}

bool HeadlessGame::InLedger(const std::string& word, int slots) const
{
    const auto first = board.UsedWords.begin();
    return std::find(first, first + slots + 1, word) != first + slots + 1;
}
