// What is to happen a moment later, over the one alarm of a front end.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

class FrontEnd;

enum class Alarm { Announcement, Refusal };

class Alarms {
public:
    // The front end outlives this.
    explicit Alarms(FrontEnd& front);

    // After so many milliseconds, and not when it was set to before.
    void Set(Alarm alarm, int milliseconds);

    // The front end calls: true for an alarm that is due, and then no more. The others are set
    // anew.
    bool TakeDue(Alarm alarm);
    void SetNext();

private:
    FrontEnd& front_;
    std::array<std::optional<std::int64_t>, 2> at_; // by the front end's clock
};
