#include "ui/session.h"

#include "game/board.h"
#include "game/clicks.h"
#include "game/game.h"
#include "game/rows.h"
#include "game/start_of_game.h"
#include "ui/changes.h"
#include "ui/front_end.h"
#include "ui/part.h"
#include "ui/roster.h"
#include "ui/shortcuts.h"
#include "ui/taking_back.h"

#include <cstdlib>
#include <memory>
#include <utility>

namespace {

// Has the game loaded before anything looks at the board.
Game& Loaded(Game& game)
{
    Form_Load(game);
    return game;
}

} // namespace

Session::Session(Game& game, FrontEnd& front)
    : game_(Loaded(game))
    , front_(front)
    , alarms_(front)
    , announcer_(game.board, front, alarms_)
    , guess_(game.board)
{
}

void Session::Start()
{
    Show();
    GoTo(&WherePlayGoesOn(game_.board));
}

void Session::Show()
{
    front_.ShowBoard();
    KeepFocusInPlay();
    front_.TakeOutOfPlay();
    announcer_.Look();
}

Look Session::LookOf(const Part& part) const
{
    Look look = ::LookOf(part, game_.board, marks_);
    if (&part == led_)
        look.Help.clear();
    return look;
}

// True while nothing on the window answers; what the front end shows is the board's again.
bool Session::PutsBack()
{
    if (messageIsOpen_)
        front_.ShowBoard();
    return messageIsOpen_;
}

void Session::GoTo(const Part* part)
{
    if (part != nullptr)
        front_.Focus(*part);
}

// The game moves the focus, and says what is new: the box says its letter alone.
void Session::LeadTo(const Part& part)
{
    led_ = &part;
    front_.ShowBoard();
    front_.Focus(part);
}

// What is disabled or hidden while it has the focus would hand it to its neighbour.
void Session::KeepFocusInPlay()
{
    if (!StaysInPlay(front_.Focused(), game_.board))
        GoTo(&WherePlayGoesOn(game_.board));
}

void Session::ShowFocus(bool shows)
{
    if (std::exchange(showsFocus_, shows) != shows)
        front_.ShowBoard();
}

void Session::Deliver(const Part& part)
{
    if (part.Clicked == nullptr)
        return;
    marks_ = Marks();
    const bool laysOut = HoldsLetters(game_.board.Text2);
    ::Deliver(game_, *part.Clicked, static_cast<std::int16_t>(part.Number));
    laidOutWhole_
        = laysOut && part.Clicked == FindClick("Text2") && !HoldsLetters(game_.board.Text2);
}

void Session::Click(const Part& part)
{
    if (PutsBack() || part.Clicked == nullptr)
        return;
    const auto before = std::make_unique<Board>(game_.board);
    announcer_.BeginHandler();
    goWentOver_ = false;
    Deliver(part);
    if (goWentOver_)
        marks_.Changed = ChangedByComputer(*before, game_.board);
    Show();
    announcer_.EndHandler();
    After(part, *before);
}

void Session::After(const Part& clicked, const Board& before)
{
    const Outcome outcome{clicked, before, game_.board, goWentOver_};
    if (EndsGoOrBeginsGame(outcome)) {
        stops_ = TabStops();
        pressesFrom_ = pressedAt_ + front_.DoubleClickMilliseconds();
    }
    if (CallsForPlay(outcome))
        LeadTo(WherePlayGoesOn(game_.board));
    else if (CallsForGuess(outcome))
        GoTo(guess_.Gap());
}

bool Session::PointerDown()
{
    if (messageIsOpen_)
        return false;
    ShowFocus(false);
    const std::int64_t now = front_.Milliseconds();
    if (now < pressesFrom_)
        return false;
    pressedAt_ = now;
    return true;
}

bool Session::BeginDrag(const Part& from)
{
    const Board& board = game_.board;
    const bool yellow = from.Clicked == FindClick("Text1");
    const bool lilac = from.Clicked == FindClick("SwapLetters");
    if (messageIsOpen_ || board.HeldFlag || HasEmptyBox(board.Text1) || !(yellow || lilac)
        || !IsInReach(from, board))
        return false;
    dragged_ = &from;
    if (yellow)
        Click(from);
    return true;
}

void Session::EndDrag(const Part* to)
{
    const Part* from = std::exchange(dragged_, nullptr);
    if (from == nullptr || messageIsOpen_)
        return;
    const auto is = [this](const Part* part, const char* row) {
        return part != nullptr && part->Clicked == FindClick(row) && IsInReach(*part, game_.board);
    };
    if (is(from, "SwapLetters")) {
        if (is(to, "Text1")) {
            Click(*to);
            Click(*from);
        }
        return;
    }
    if (!game_.board.HeldLetter.empty())
        Click(is(to, "Text1") || is(to, "SwapLetters") ? *to : *from);
}

std::string Session::LetterInHand() const
{
    const bool lilac = dragged_ != nullptr && dragged_->Clicked == FindClick("SwapLetters");
    return lilac ? BoxOf(*dragged_, game_.board)->Text : game_.board.HeldLetter;
}

bool Session::Press(const KeyPress& key)
{
    if (messageIsOpen_)
        return true;
    ShowFocus(true);
    const Part* at = front_.Focused();
    if (at != nullptr && at->Row->Is == Kind::GuessBox && PressInGuess(*at, key))
        return true;
    switch (key.Is) {
    case Key::Escape:
        Escape();
        return true;
    case Key::Backspace:
        if (at != nullptr && at->Row->Is == Kind::GuessBox)
            return false;
        if (!key.Held)
            TakeBack();
        return true;
    case Key::Enter:
        return key.Held || PressEnter(at);
    case Key::Tab:
    case Key::BackTab:
        return StepBy(key.Is == Key::Tab);
    case Key::Left:
    case Key::Right:
    case Key::Up:
    case Key::Down:
    case Key::Home:
    case Key::End:
        return at != nullptr && Walk(*at, key);
    default:
        return key.Held || PressFunctionKey(key);
    }
}

bool Session::PressInGuess(const Part& at, const KeyPress& key)
{
    if (key.Is == Key::Enter) {
        const Part* gap = guess_.Gap(&at) != nullptr ? guess_.Gap(&at) : guess_.Gap();
        if (gap != nullptr)
            GoTo(gap);
        else if (!key.Held)
            Click(FindPart("Command7")); // "Make A Guess"
        return true;
    }
    const GuessRows::Move move = guess_.Press(at, key);
    if (move.Handled && key.Is == Key::Backspace)
        Show();
    GoTo(move.To);
    return move.Handled;
}

bool Session::PressFunctionKey(const KeyPress& key)
{
    if (key.Is == Key::F1) {
        if (!front_.OpenHowToPlay())
            announcer_.Say("The page on playing cannot be shown");
        return true;
    }
    const bool tells = key.Shift && game_.board.Frame2.Visible;
    for (const Telling& telling : Tellings()) {
        if (tells && key.Is == telling.Is)
            announcer_.Say(telling.Tell(game_.board));
    }
    for (const Shortcut& shortcut : Shortcuts()) {
        if (!key.Shift && key.Is == shortcut.Is)
            Click(FindPart(shortcut.Control));
    }
    return true;
}

// A letter that was taken in the hand goes back to its place.
void Session::PutBackHeld()
{
    if (!game_.board.HeldLetter.empty())
        Click(FindPart("Text1", game_.board.HeldIndex));
}

// Ends a drag and a laying out.
void Session::Escape()
{
    EndDrag(nullptr);
    PutBackHeld();
    if (!HoldsLetters(game_.board.Text2))
        return;
    PlaceTheRest(game_.board, [this](const Part& part) { Click(part); });
    laidOutWhole_ = false; // the player has not laid it out
    if (CanType(game_.board))
        GoTo(&FindPart("Text1", 1));
}

// The letter placed last; with none placed the laying out ends.
void Session::TakeBack()
{
    const Board& board = game_.board;
    PutBackHeld();
    if (!CanType(board) || !(HoldsLetters(board.Text2) || laidOutWhole_))
        return;
    if (PlacedSoFar(board) == 0)
        return Escape();
    announcer_.BeginHandler(); // shown and told once
    TakeBackLast(board, [this](const Part& part) { Deliver(part); });
    Show();
    announcer_.EndHandler();
    GoTo(&WherePlayGoesOn(board));
}

// The row does not have the letter: the next box shows it for a moment.
void Session::Refuse(const TypedLetter& letter)
{
    constexpr int shownFor = 200; // milliseconds
    const Board& board = game_.board;
    marks_.Refused = &FindPart("Text1", HoldsLetters(board.Text2) ? board.LayOutNext : 1);
    alarms_.Set(Alarm::Refusal, shownFor);
    announcer_.Say("no " + letter.front());
    front_.ShowBoard();
}

void Session::Wake()
{
    if (alarms_.TakeDue(Alarm::Refusal)) {
        marks_.Refused = nullptr;
        front_.ShowBoard();
    }
    if (alarms_.TakeDue(Alarm::Announcement))
        announcer_.Tell();
    alarms_.SetNext();
}

// On the level panel it chooses the level that has the focus; on the chosen one it is "OK".
bool Session::PressEnter(const Part* at)
{
    if (at == nullptr)
        return false;
    const auto number = static_cast<std::int16_t>(at->Number);
    const bool works = at->Clicked != nullptr && IsEnabled(*at, game_.board)
        && at->Clicked->Works(game_.board, number);
    if (!works && at->Row->Is != Kind::Check)
        announcer_.Say("Nothing to do here");
    if (at->Row->Is == Kind::Option && at->Number == game_.board.Level)
        Click(FindPart("Command1"));
    else if (at->Row->Is == Kind::Check)
        Tick(game_.board.Check1 == 0);
    else
        Click(*at);
    return true;
}

// An arrow key goes on from the level that is chosen, and with none chosen it chooses the one that
// has the focus.
bool Session::PressOnOption(const Part& at, Key key)
{
    if (key == Key::Home || key == Key::End)
        return false;
    const int step = key == Key::Left || key == Key::Up ? -1 : 1;
    const int level = game_.board.Level == 0 ? at.Number : at.Number + step;
    if (level < 1 || level > levels)
        return true;
    const Part& option = FindPart("Option1", level);
    GoTo(&option);
    Click(option);
    return true;
}

bool Session::Walk(const Part& at, const KeyPress& key)
{
    const bool back = key.Is == Key::Left || key.Is == Key::Up;
    const bool sideways = key.Is == Key::Left || key.Is == Key::Right;
    switch (at.Row->Is) {
    case Kind::Option:
        return PressOnOption(at, key.Is);
    case Kind::GuessBox:
        if (sideways)
            return false; // within the text
        [[fallthrough]];
    case Kind::LetterTile:
        if (const Part* to = WalkRow(at, key.Is, game_.board)) {
            GoTo(to);
            return true;
        }
        if (sideways)
            return true; // within the row
        break;
    case Kind::List: // Up and Down walk the words; Right leaves them
        if (key.Is != Key::Right)
            return (sideways || (back ? key.AtStart : key.AtEnd)) && key.Is != Key::Home
                && key.Is != Key::End;
        break;
    default:
        break;
    }
    return key.Is != Key::Home && key.Is != Key::End && StepBy(!back);
}

bool Session::StepBy(bool onwards)
{
    const Part* to = StepByTab(front_.Focused(), onwards, stops_, game_.board);
    GoTo(to);
    return to != nullptr;
}

void Session::Type(const TypedLetter& letter)
{
    if (messageIsOpen_)
        return;
    ShowFocus(true);
    PutBackHeld();
    const Part* to = TypeLetter(game_.board, letter, [this](const Part& part) { Click(part); });
    if (to == nullptr && CanType(game_.board))
        Refuse(letter);
    GoTo(to);
}

void Session::Edited(const Part& box, const std::string& text, Edit edit)
{
    if (PutsBack())
        return;
    const Part* to = guess_.Write(box, text, edit);
    Show();
    if (to == nullptr)
        return;
    GoTo(to);
    guess_.SteppedOn();
}

void Session::Wrote(const Part& box, const std::string& text)
{
    if (PutsBack())
        return;
    guess_.Set(box, text);
    Show();
}

void Session::Tick(bool ticked)
{
    if (PutsBack())
        return;
    game_.board.Check1 = ticked ? 1 : 0;
    Show();
}

void Session::FocusCame(const Part& part)
{
    stops_.Came(part);
    guess_.FocusCame();
    if (led_ != nullptr && led_ != &part) { // its help is said when the player comes back to it
        led_ = nullptr;
        front_.ShowBoard();
    }
}

void Session::ReachedWord(const std::string& word)
{
    announcer_.Say(word);
}

// The message opens over the board as it is at this moment.
Answer Session::Ask(const Message& message)
{
    Show();
    messageIsOpen_ = true;
    openedAt_ = front_.Milliseconds();
    const Answer answer = front_.Ask(message);
    messageIsOpen_ = false;
    announcer_.AfterMessage(message.Text);
    return answer;
}

bool Session::TakesAnswer() const
{
    constexpr int unread = 250; // milliseconds
    return front_.Milliseconds() - openedAt_ >= unread;
}

void Session::Repaint()
{
    Show();
    const bool goesOver = !game_.board.Label5.Visible;
    front_.PaintNow(); // where a click that waits can run as a whole
    goWentOver_ = goWentOver_ || goesOver;
}

void Session::End()
{
    front_.End();
    std::abort(); // for compilers that do not believe a virtual function
}
