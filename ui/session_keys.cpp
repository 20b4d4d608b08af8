// The keys of a session.
#include "ui/session.h"

#include "game/board.h"
#include "game/clicks.h"
#include "game/game.h"
#include "game/rows.h"
#include "ui/front_end.h"
#include "ui/part.h"
#include "ui/roster.h"
#include "ui/shortcuts.h"
#include "ui/taking_back.h"

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
        LeadTo(&FindPart("Text1", 1));
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
    LeadTo(&WherePlayGoesOn(board));
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
    LeadTo(to);
}
