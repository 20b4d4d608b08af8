#include "ui/alarms.h"

#include "ui/front_end.h"

#include <algorithm>

Alarms::Alarms(FrontEnd& front)
    : front_(front)
{
}

void Alarms::Set(Alarm alarm, int milliseconds)
{
    at_.at(static_cast<std::size_t>(alarm)) = front_.Milliseconds() + milliseconds;
    SetNext();
}

bool Alarms::TakeDue(Alarm alarm)
{
    auto& at = at_.at(static_cast<std::size_t>(alarm));
    const bool due = at && *at <= front_.Milliseconds();
    if (due)
        at.reset();
    return due;
}

void Alarms::SetNext()
{
    std::optional<std::int64_t> next;
    for (const auto& at : at_) {
        if (at && (!next || *at < *next))
            next = at;
    }
    if (next)
        front_.WakeAfter(
            static_cast<int>(std::max<std::int64_t>(0, *next - front_.Milliseconds())));
}
