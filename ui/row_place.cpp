#include "ui/row_place.h"

void RowPlace::JoinTo(RowPlace& previous)
{
    previous_ = &previous;
    previous.next_ = this;
    box_.setFocusPolicy(Qt::ClickFocus);
}

template <typename Visit> void RowPlace::ForEachOther(Visit visit) const
{
    for (const RowPlace* place = previous_; place != nullptr; place = place->previous_)
        visit(*place);
    for (const RowPlace* place = next_; place != nullptr; place = place->next_)
        visit(*place);
}

void RowPlace::StopHere()
{
    ForEachOther([](const RowPlace& place) { place.box_.setFocusPolicy(Qt::ClickFocus); });
    box_.setFocusPolicy(Qt::StrongFocus);
}

// For the reason of a Tab key a box to type in selects its text, so that typing replaces it.
bool RowPlace::StepTo(const RowPlace* place)
{
    if (place != nullptr)
        place->box_.setFocus(Qt::TabFocusReason);
    return place != nullptr;
}

bool RowPlace::Walk(int key) const
{
    const RowPlace* nearest = nullptr;
    const RowPlace* farthest = nullptr;
    const bool left = key == Qt::Key_Left || key == Qt::Key_Home;
    if (!left && key != Qt::Key_Right && key != Qt::Key_End)
        return false;
    for (const RowPlace* place = left ? previous_ : next_; place != nullptr;
        place = left ? place->previous_ : place->next_) {
        if (!place->IsInReach())
            continue;
        nearest = nearest == nullptr ? place : nearest;
        farthest = place;
    }
    return StepTo(key == Qt::Key_Left || key == Qt::Key_Right ? nearest : farthest);
}

void RowPlace::StepIntoSight() const
{
    const RowPlace* place = this;
    while (place != nullptr && place->box_.visibleRegion().isEmpty())
        place = place->next_;
    if (place != nullptr && place != this)
        StepTo(place);
}
