#include "tools/search/event_player.h"

#include "game/clicks.h"
#include "game/rows.h"
#include "game/start_of_game.h"
#include "tools/search/board_rules.h"

#include <algorithm>
#include <sstream>

namespace {

// The letters that the word needs beyond these.
std::string Missing(const std::string& word, std::string letters)
{
    std::string missing;
    for (const char letter : word) {
        const std::size_t at = letters.find(letter);
        at == std::string::npos ? missing += letter : letters.erase(at, 1);
    }
    return missing;
}

int BoxOf(const LetterRow& row, char letter)
{
    const auto box = std::ranges::find(row, std::string(1, letter), &LetterBox::Text);
    return static_cast<int>(box - row.begin()) + 1;
}

auto Filled(const LetterRow& row)
{
    return 6 - std::ranges::count(row, "", &LetterBox::Text);
}

bool InLedger(const Board& board, const std::string& word, int slots)
{
    return std::ranges::count(board.UsedWords.begin(), board.UsedWords.begin() + slots + 1, word)
        != 0;
}

struct ProgramEnded { };

} // namespace

EventPlayer::EventPlayer(std::filesystem::path lexicon, Platform& platform)
    : game_{board, *this, platform, std::move(lexicon)}
{
    StartProgram();
}

void EventPlayer::StartProgram()
{
    board = Board{};
    answers_.clear();
    pending_.clear();
    depth_ = 0;
    exchanged_ = false;
    Form_Load(game_);
}

std::string EventPlayer::Play(const std::string& script)
{
    std::istringstream words(script);
    for (std::string event; failure_.empty() && words >> event;) {
        try {
            if (event.starts_with('~')) {
                pending_.push_back(event.substr(1));
            } else {
                Do(event);
                RunPending();
            }
        } catch (const ProgramEnded&) {
            Require(lastCall_.starts_with("New Game?")
                    || lastCall_.ends_with("C:\\ Directory (Folder)"),
                "the program ended for no reason");
            StartProgram();
        }
    }
    return failure_;
}

void EventPlayer::RunPending()
{
    while (!pending_.empty()) {
        const std::string event = pending_.front();
        pending_.pop_front();
        counts["events inside RefreshWindow"] += depth_ > 0;
        Do(event);
    }
}

void EventPlayer::Do(const std::string& event)
{
    const std::string control = event.substr(0, event.find_first_of(":="));
    const int index = event.size() > control.size() ? event[control.size() + 1] - '0' : 0;
    if (event == "yes" || event == "no")
        return answers_.push_back(event == "yes" ? Answer::Yes : Answer::No);
    if (control == "word")
        return SubmitWord(std::stoi(event.substr(5)));
    if (FindClick(control))
        return Click(control, index);
    if (control == "Check1" && board.Frame9.Visible) {
        board.Check1 = event.ends_with('1') ? 1 : 0;
        ++counts["events"];
    } else if (board.Frame2.Visible) {
        LetterRow* const rows[] = {&board.Text6, &board.Text7, &board.Text8};
        for (int k = 1; k <= 3; ++k) {
            for (int i = 1; control == "right" && i <= 6; ++i)
                (*rows[k - 1])(i).Text = board.HiddenWords(k)[static_cast<std::size_t>(i) - 1];
        }
        if (control != "right") {
            std::string& text = (*rows[control[4] - '6'])(index).Text;
            text = event.substr(event.find('=') + 1);
            std::ranges::replace(text, '_', ' ');
        }
        ++counts["events"];
    }
    Check();
}

void EventPlayer::Click(const std::string& control, int index)
{
    const auto box = static_cast<std::int16_t>(index);
    const ::Click& click = *FindClick(control);
    const bool starting = depth_ > 0 && board.CandidateCount == 0;
    // Known: a letter bought while a game starts is one of the words before, and stays.
    if (!click.OnView(board, box) || !click.Enabled(board, box)
        || (starting && control.starts_with("Word")))
        return;
    ++counts["events"];
    ++counts[control];
    const bool exchanges = control == "SwapLetters" && board.HeldFlag;
    Require(!exchanges || !exchanged_, "a second exchange in one go");
    exchanged_ |= exchanges || control == "Command16";
    counts["exchanges"] += exchanges;
    const std::string score = board.YourScore.Text;
    const long before = refreshes_;
    ++depth_;
    Deliver(game_, click, box);
    --depth_;
    // Who repaints before the work is done hands the go over, or begins a game.
    if (refreshes_ != before && control != "SwapLetters") {
        exchanged_ = false;
        Require(board.SwapLetters(1).Enabled || control == "Command3", "a go with no exchange");
    }
    counts["letters bought"] += control.starts_with("Word") && board.YourScore.Text != score;
    Check();
}

// Exchanges a letter if that is needed, lays out the letters, places them and submits the word: the
// pick-th candidate, or the next that is in reach. Every eighth time it may be a used one.
void EventPlayer::SubmitWord(int pick)
{
    if (board.HeldFlag)
        Click("Text1", board.HeldIndex);
    const std::string row = Spell(board.Text1);
    const std::string spare = board.SwapLetters(1).Enabled ? Spell(board.SwapLetters) : "";
    for (int k = 1; k <= board.CandidateCount && row.size() == 6; ++k) {
        const std::string word = board.Candidates((k + pick) % board.CandidateCount + 1);
        const std::string missing = Missing(word, row);
        if (missing.size() > 1 || !Missing(missing, spare).empty() || word.size() != 6
            || (pick % 8 != 0 && InLedger(board, word, board.UsedCount)))
            continue;
        if (!missing.empty()) {
            Click("Text1", BoxOf(board.Text1, Missing(row, word).front()));
            Click("SwapLetters", BoxOf(board.SwapLetters, missing.front()));
        }
        Click("Command9");
        for (const char letter : word) {
            if (const int up = BoxOf(board.Text2, letter); up <= 6)
                Click("Text2", up);
        }
        Click("Command3");
        return;
    }
}

void EventPlayer::ShowMessage(const std::string& text, const std::string& title)
{
    ShowCall(title + ": " + text);
}

Answer EventPlayer::AskYesNo(const std::string& text, const std::string& title)
{
    ShowCall(title + "? " + text);
    if (answers_.empty())
        return Answer::Yes;
    const Answer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

void EventPlayer::RefreshWindow()
{
    ShowCall("refresh");
}

void EventPlayer::EndProgram()
{
    throw ProgramEnded{};
}

void EventPlayer::ShowCall(const std::string& call)
{
    lastCall_ = call;
    // The words and numbers behind a second colon would make each message a kind of its own.
    ++counts[call.substr(0, call.find(':', std::min(call.size(), call.find(':') + 1)))];
    if (call == "refresh") {
        ++refreshes_;
        Check();
        const bool interrupted = !pending_.empty();
        RunPending();
        interrupted_ = interrupted;
    }
    if (call == "Quorvel2: Word Accepted") {
        counts["words behind the 50th"] += board.List1.ListCount() >= 50;
        Require(interrupted_ || !InLedger(board, Spell(board.Text1), 50), "a used word scores");
    }
    if (call.starts_with("Word Found: My Word:")) {
        const std::string word = call.substr(20);
        Require(!InLedger(board, word, 250), "the computer plays a used word");
        Require(Missing(Spell(board.MyLetters), word).empty(), "not the computer's letters");
    }
}

void EventPlayer::Require(bool holds, const std::string& rule)
{
    if (!holds && failure_.empty())
        failure_ = rule + ": " + Line(board);
}

// What holds behind every event, and inside every RefreshWindow.
void EventPlayer::Check()
{
    const bool shown = board.Frame4.Visible;
    for (const Frame& frame :
        {board.Frame2, board.Frame3, board.Frame5, board.Frame7, board.Frame9})
        Require(frame.Visible == shown, "half of the board is on view");
    Require(board.Frame1.Visible == board.Command2.Visible, "half of the level panel is on view");
    Require(depth_ > 0 || shown || board.Frame1.Visible, "the window is empty");
    Require(depth_ > 0 || board.Label5.Visible, "nobody's go");
    if (board.HiddenWords(1).empty())
        return;
    // Between two games there are no candidates.
    const std::int16_t candidates = board.CandidateCount;
    if (depth_ > 0 && candidates == 0)
        board.CandidateCount = 300;
    const std::string fault = FindFault(board);
    board.CandidateCount = candidates;
    Require(fault.empty(), fault);
    const auto up = Filled(board.Text2);
    Require(up + Filled(board.Text1) + board.HeldFlag == 6, "not six letters to the player");
    Require(board.HeldFlag != board.HeldLetter.empty(), "an empty hand holds on");
    Require(up == 0 || up + board.LayOutNext == 7, "a laying out has lost its place");
    Require(!HasEmptyBox(board.MyLetters) && !HasEmptyBox(board.SwapLetters), "an empty box");
    Require(std::ranges::count(board.SwapLetters, true, &LetterBox::Enabled) % 6 == 0,
        "half of the swap row takes clicks");
}
