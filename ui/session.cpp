#include "ui/session.h"

#include "game/board.h"
#include "game/clicks.h"
#include "game/game.h"
#include "game/start_of_game.h"
#include "ui/front_end.h"
#include "ui/part.h"
#include "ui/roster.h"

#include <cstdlib>
#include <memory>

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
    , announcer_(game.board, front)
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

// What is disabled or hidden while it has the focus would hand it to its neighbour.
void Session::KeepFocusInPlay()
{
    if (!StaysInPlay(front_.Focused(), game_.board))
        GoTo(&WherePlayGoesOn(game_.board));
}

void Session::Click(const Part& part)
{
    if (PutsBack() || part.Clicked == nullptr)
        return;
    const auto before = std::make_unique<Board>(game_.board);
    announcer_.BeginHandler();
    goWentOver_ = false;
    Deliver(game_, *part.Clicked, static_cast<std::int16_t>(part.Number));
    Show();
    announcer_.EndHandler();
    const Outcome outcome{part, *before, game_.board, goWentOver_};
    if (CallsForPlay(outcome))
        GoTo(&WherePlayGoesOn(game_.board));
    else if (CallsForGuess(outcome))
        GoTo(guess_.Gap());
}

bool Session::Press(const KeyPress& key)
{
    if (messageIsOpen_)
        return true;
    const Part* at = front_.Focused();
    if (at != nullptr && at->Row->Is == Kind::GuessBox) {
        const GuessRows::Move move = guess_.Press(*at, key);
        if (move.Handled) {
            if (key.Is == Key::Backspace)
                Show();
            GoTo(move.To);
            return true;
        }
    }
    switch (key.Is) {
    case Key::F1:
        if (!key.Held)
            front_.OpenHowToPlay();
        return true;
    case Key::Escape:
        PlaceTheRest(game_.board, [this](const Part& part) { Click(part); });
        return true;
    case Key::Enter:
        return key.Held || PressEnter(at);
    case Key::Tab:
    case Key::BackTab:
        return StepBy(key.Is == Key::Tab);
    case Key::Backspace:
        return false;
    default:
        return at != nullptr && Walk(*at, key);
    }
}

// On the level panel it chooses the level that has the focus; on the chosen one it is "OK".
bool Session::PressEnter(const Part* at)
{
    if (at == nullptr)
        return false;
    if (at->Row->Is == Kind::Option && at->Number == game_.board.Level)
        Click(FindPart("Command1"));
    else if (at->Row->Is == Kind::Check)
        Tick(game_.board.Check1 == 0);
    else
        Click(*at);
    return at->Row->Is != Kind::GuessBox;
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
    case Kind::List: // Left and Right leave it; Up and Down walk the words and leave it at their ends
        if (!sideways && !(back ? key.AtStart : key.AtEnd))
            return false;
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
    GoTo(TypeLetter(game_.board, letter, [this](const Part& part) { Click(part); }));
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
    const Answer answer = front_.Ask(message);
    messageIsOpen_ = false;
    announcer_.AfterMessage();
    return answer;
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
