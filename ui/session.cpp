#include "ui/session.h"

#include "game/board.h"
#include "game/clicks.h"
#include "game/game.h"
#include "game/rows.h"
#include "game/start_of_game.h"
#include "ui/changes.h"
#include "ui/front_end.h"
#include "ui/part.h"

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
    if (&part == DraggedLilac())
        std::swap(look.Faint, look.Text);
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
void Session::LeadTo(const Part* part)
{
    if (part == nullptr)
        return;
    led_ = part;
    front_.ShowBoard();
    front_.Focus(*part);
}

// What is disabled or hidden while it has the focus would hand it to its neighbour.
void Session::KeepFocusInPlay()
{
    if (!StaysInPlay(front_.Focused(), game_.board))
        LeadTo(&WherePlayGoesOn(game_.board));
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
        LeadTo(&WherePlayGoesOn(game_.board));
    else if (CallsForGuess(outcome))
        LeadTo(guess_.Gap());
}

bool Session::PointerDown()
{
    if (messageIsOpen_)
        return false;
    ShowFocus(false);
    guess_.SteppedOn(nullptr);
    const std::int64_t now = front_.Milliseconds();
    if (now < pressesFrom_)
        return false;
    pressedAt_ = now;
    return true;
}

bool Session::IsForDragging(const Part& part)
{
    return part.Clicked == FindClick("Text1") || part.Clicked == FindClick("SwapLetters");
}

bool Session::BeginDrag(const Part& from)
{
    const Board& board = game_.board;
    if (messageIsOpen_ || board.HeldFlag || HasEmptyBox(board.Text1) || !IsForDragging(from)
        || !IsInReach(from, board))
        return false;
    dragged_ = &from;
    if (from.Clicked == FindClick("Text1"))
        Click(from);
    else
        front_.ShowBoard();
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
        front_.ShowBoard();
        return;
    }
    if (!game_.board.HeldLetter.empty())
        Click(is(to, "Text1") || is(to, "SwapLetters") ? *to : *from);
}

// Its letter is in no hand of the board's before the drop.
const Part* Session::DraggedLilac() const
{
    return dragged_ != nullptr && dragged_->Clicked == FindClick("SwapLetters") ? dragged_
                                                                                : nullptr;
}

std::string Session::LetterInHand() const
{
    const Part* lilac = DraggedLilac();
    return lilac != nullptr ? BoxOf(*lilac, game_.board)->Text : game_.board.HeldLetter;
}

const Part& Session::PlaceOfLetterInHand() const
{
    return dragged_ != nullptr ? *dragged_ : FindPart("Text1", game_.board.HeldIndex);
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

void Session::Edited(const Part& box, const std::string& text, Edit edit)
{
    if (PutsBack())
        return;
    const Part* to = guess_.Write(box, text, edit);
    Show();
    if (to == nullptr)
        return;
    guess_.SteppedOn(to);
    GoTo(to);
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
    guess_.FocusCame(part);
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

void Session::MessageShows()
{
    openedAt_ = front_.Milliseconds();
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
