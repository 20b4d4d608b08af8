#include "ui/web/page.h"

#include "game/board.h"
#include "game/game.h"
#include "ui/part.h"
#include "ui/roster.h"
#include "ui/web/roster_facts.h"
#include "ui/web/script.h"

#include <cstdlib>
#include <string_view>
#include <utility>

namespace {

// The board is that of the window at its one size, however large it is seen.
constexpr Desktop roomOfItsOwn{.Window = {1, 1}, .Fills = true};

// Tells what is not as it was told before.
class Difference {
public:
    Difference(int part, const std::optional<Look>& before)
        : part_(part)
        , before_(before ? &*before : nullptr)
    {
    }

    void Tell(const char* field, const Look& look, std::string Look::* is) const
    {
        if (before_ == nullptr || before_->*is != look.*is)
            TellText(part_, field, (look.*is).c_str());
    }
    template <typename Value> void Tell(const char* field, const Look& look, Value Look::* is) const
    {
        if (before_ == nullptr || before_->*is != look.*is)
            TellNumber(part_, field, static_cast<double>(look.*is));
    }

private:
    int part_;
    const Look* before_;
};

} // namespace

Page::Page(Game& game)
    : game_(game)
    , size_(game.board)
    , session_(game, *this)
    , shown_(Parts().size())
{
}

void Page::Start()
{
    TellRoster();
    BuildBoard();
    session_.Start();
    size_.ReadSize(roomOfItsOwn);
}

bool Page::Take(const PlayerEvent& event)
{
    if (ended_)
        return false;
    if (!painting_)
        return Run(event);
    waiting_.push_back(event);
    return true;
}

bool Page::Run(const PlayerEvent& event)
{
    switch (event.Is) {
    case PlayerEvent::Kind::Click:
        session_.Click(*event.At);
        break;
    case PlayerEvent::Kind::Press:
        return session_.Press(event.Pressed);
    case PlayerEvent::Kind::Type:
        session_.Type(event.Texts);
        break;
    case PlayerEvent::Kind::Edit:
        session_.Edited(*event.At, event.Texts.front(), Edit::Typed);
        break;
    case PlayerEvent::Kind::Erase:
        session_.Edited(*event.At, event.Texts.front(), Edit::Erased);
        break;
    case PlayerEvent::Kind::Write:
        session_.Wrote(*event.At, event.Texts.front());
        break;
    case PlayerEvent::Kind::Tick:
    case PlayerEvent::Kind::Untick:
        session_.Tick(event.Is == PlayerEvent::Kind::Tick);
        break;
    case PlayerEvent::Kind::BeginDrag:
        return session_.BeginDrag(*event.At);
    case PlayerEvent::Kind::EndDrag:
        session_.EndDrag(event.At);
        break;
    }
    return true;
}

// A click on one option changes the others of its group.
void Page::Forget(const Part& part)
{
    for (const Part& other : Parts()) {
        if (&other == &part || (part.Row->Is == Kind::Option && other.Row->Is == Kind::Option))
            shown_[IndexOf(other)].Is.reset();
    }
}

void Page::ShowBoard()
{
    if (std::exchange(caption_, game_.board.Caption) != game_.board.Caption)
        ShowCaption(caption_.c_str());
    if (std::exchange(showsFocus_, session_.ShowsFocus()) != session_.ShowsFocus())
        ShowRing(showsFocus_ ? 1 : 0);
    if (const bool inGame = !game_.board.Frame1.Visible; inGame_ != inGame) {
        inGame_ = inGame;
        ShowInGame(inGame ? 1 : 0);
    }
    for (const Part& part : Parts()) {
        const int place = static_cast<int>(IndexOf(part));
        Shown& shown = shown_[IndexOf(part)];
        const Look look = session_.LookOf(part);
        const Difference difference(place, shown.Is);
        difference.Tell("text", look, &Look::Text);
        difference.Tell("faint", look, &Look::Faint);
        difference.Tell("chosen", look, &Look::Chosen);
        difference.Tell("edge", look, &Look::Border);
        difference.Tell("mark", look, &Look::Marked);
        difference.Tell("faded", look, &Look::Faded);
        difference.Tell("clear", look, &Look::Clear);
        difference.Tell("name", look, &Look::Name);
        difference.Tell("help", look, &Look::Help);
        shown.Is = look;
        if (IsEnabled(part, game_.board) && !std::exchange(shown.Enabled, true))
            TellNumber(place, "enabled", 1);
        if (IsShown(part, game_.board) && !std::exchange(shown.OnView, true))
            TellNumber(place, "onView", 1);
        if (PlaceIsTheBoards(part)) {
            const TwipRect at = PlaceInTwips(part, game_.board);
            if (at != std::exchange(shown.Place, at))
                TellPlace(part, at);
        }
    }
}

void Page::TakeOutOfPlay()
{
    for (const Part& part : Parts()) {
        const int place = static_cast<int>(IndexOf(part));
        Shown& shown = shown_[IndexOf(part)];
        if (!IsEnabled(part, game_.board) && std::exchange(shown.Enabled, false))
            TellNumber(place, "enabled", 0);
        if (!IsShown(part, game_.board) && std::exchange(shown.OnView, false))
            TellNumber(place, "onView", 0);
    }
}

const Part* Page::Focused() const
{
    const int place = FocusedPart();
    return place < 0 ? nullptr : &Parts()[static_cast<std::size_t>(place)];
}

void Page::Focus(const Part& part)
{
    FocusPart(static_cast<int>(IndexOf(part)));
}

// An event that comes while one of the waiting runs joins them only if that one waits for a frame.
void Page::PaintNow()
{
    painting_ = true;
    WaitForFrame();
    painting_ = false;
    while (!waiting_.empty()) {
        const PlayerEvent event = waiting_.front();
        waiting_.erase(waiting_.begin());
        Run(event);
    }
}

// Whatever was under way before the message could be seen is not meant for it, nor for what comes
// after it.
Answer Page::Ask(const Message& message)
{
    waiting_.clear();
    asked_ = &message;
    const bool yes = AskInDialog(message.Text.c_str(), message.Title.c_str(), message.Asks,
                         message.NoIsHarmless, message.EscapeAnswers())
        != 0;
    asked_ = nullptr;
    return yes ? Answer::Yes : Answer::No;
}

void Page::PlaceMessage(const Scale& scale, std::optional<PixelPoint> pointer)
{
    if (asked_ == nullptr)
        return;
    const auto measure = [](int widest) {
        const int height = MeasureDialog(widest);
        return PixelSize{widest, height};
    };
    const PixelRect place = PlaceOfMessage(*asked_, game_.board, scale, measure, pointer);
    PlaceDialog(place.Left, place.Top, place.Width);
}

bool Page::TabLeaves(bool onwards) const
{
    const Part* from = Focused();
    const Part* to = StepByTab(from, onwards, session_.Stops(), game_.board);
    if (from == nullptr || to == nullptr)
        return from != nullptr;
    for (const char* name : TabOrder()) {
        const bool isFrom = name == std::string_view(from->Row->Name);
        if (isFrom || name == std::string_view(to->Row->Name))
            return isFrom != onwards;
    }
    return false;
}

void Page::End()
{
    ended_ = true;
    waiting_.clear();
    EndOnPage();
    std::abort();
}

void Page::Say(const std::string& text)
{
    SayText(text.c_str());
}

void Page::WakeAfter(int milliseconds)
{
    WakeProgramAfter(milliseconds);
}

std::int64_t Page::Milliseconds() const
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

int Page::DoubleClickMilliseconds() const
{
    return 500; // no browser tells
}

bool Page::OpenHowToPlay()
{
    OpenHelp();
    return true;
}
