// A place in a row of boxes that the arrow keys walk, with Home and End, and where the Tab key
// stops once: at the box that had the focus last.
#pragma once

#include <QWidget>

class RowPlace {
public:
    explicit RowPlace(QWidget& box)
        : box_(box)
    {
    }
    RowPlace(const RowPlace&) = delete;
    RowPlace& operator=(const RowPlace&) = delete;

    // The neighbour to the left. The row's first box is its Tab stop.
    void JoinTo(RowPlace& previous);

    // Makes this box the Tab stop of its row.
    void StopHere();

    // Left, Right, Home and End go to a box of the row that is in play and in sight. False for any
    // other key, and where there is no such box.
    bool Walk(int key) const;

    // From a box that something covers wholly, goes to the first in sight to the right.
    void StepIntoSight() const;

private:
    static bool StepTo(const RowPlace* place);
    bool IsInReach() const { return box_.isEnabled() && !box_.visibleRegion().isEmpty(); }
    template <typename Visit> void ForEachOther(Visit visit) const;

    QWidget& box_;
    RowPlace* previous_ = nullptr;
    RowPlace* next_ = nullptr;
};
