// While one of these lives, no screen reader is told what changes.
#pragma once

#include <QAccessible>

class Silence {
public:
    Silence()
        : usual_(QAccessible::installUpdateHandler([](QAccessibleEvent* /*event*/) { }))
    {
    }
    ~Silence() { QAccessible::installUpdateHandler(usual_); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    QAccessible::UpdateHandler usual_;
};
