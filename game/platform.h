// What the rules ask of the machine: chance and the clock.
#pragma once

class Platform {
public:
    virtual ~Platform() = default;

    // The next draw of the sequence: uniform, at least 0 and below 1.
    virtual float DrawRandom() = 0;

    // Starts the sequence afresh; the same seed gives the same draws.
    virtual void SeedRandom(float seed) = 0;

    // Seconds since midnight by the local clock, with their fraction: 0 to below 86400.
    virtual float ClockSeconds() = 0;
};
