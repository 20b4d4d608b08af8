#include "ui/announcer.h"

#include "game/board.h"
#include "ui/alarms.h"
#include "ui/front_end.h"

#include <algorithm>
#include <utility>

namespace {

// Milliseconds. A screen reader drops what comes while it reads a window again, and while a hundred
// parts of the window tell it that they have come on view.
constexpr int pauseAfterMessage = 200;
constexpr int pauseAfterFrames = 1000;

} // namespace

Announcer::Announcer(const Board& board, FrontEnd& front, Alarms& alarms)
    : board_(board)
    , front_(front)
    , alarms_(alarms)
    , told_(std::make_unique<Board>(board))
    , seen_(std::make_unique<Board>(board))
{
}

Announcer::~Announcer() = default;

void Announcer::Look()
{
    const News played = PlayedSince(*seen_, board_, messages_);
    waiting_.insert(waiting_.end(), played.begin(), played.end());
    goHasPassed_ = goHasPassed_ || !board_.Label5.Visible;
    // The end of a game sets the scores back as the level panel comes; the last ones count.
    if (board_.Frame1.Visible && !seen_->Frame1.Visible && board_.Frame2.Visible)
        waiting_.push_back(ScoresOf(*seen_));
    if (board_.Frame2.Visible != seen_->Frame2.Visible)
        quietUntil_ = front_.Milliseconds() + pauseAfterFrames;
    *seen_ = board_;
    Wake();
}

void Announcer::Say(const std::string& text)
{
    if (handlers_ == 0)
        Gather();
    waiting_.push_back(text);
    Wake();
}

void Announcer::BeginHandler()
{
    ++handlers_;
}

void Announcer::EndHandler()
{
    --handlers_;
    Wake();
}

void Announcer::AfterMessage(const std::string& text)
{
    messages_ += text;
    quietUntil_ = front_.Milliseconds() + pauseAfterMessage;
}

void Announcer::Wake()
{
    if (handlers_ == 0)
        alarms_.Set(Alarm::Announcement,
            static_cast<int>(std::max<std::int64_t>(0, quietUntil_ - front_.Milliseconds())));
}

// What is new on the board comes after what waits already.
void Announcer::Gather()
{
    const News since = NewsSince(*told_, board_, std::exchange(goHasPassed_, false));
    waiting_.insert(waiting_.end(), since.begin(), since.end());
    *told_ = board_;
}

void Announcer::Tell()
{
    if (handlers_ != 0)
        return;
    Gather();
    messages_.clear();
    std::string text;
    for (const std::string& line : std::exchange(waiting_, {}))
        text += text.empty() ? line : ". " + line;
    if (!text.empty())
        front_.Say(text);
}
