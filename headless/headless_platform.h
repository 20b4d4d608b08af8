// Chance and a clock that give the same game everywhere: prepared draws, then those of a seed.
#pragma once

#include "game/platform.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <deque>
#include <functional>
#include <optional>
#include <random>
#include <string>

// Something went wrong that the rules must not handle: no std::exception, so that none of their
// failure paths swallows it.
struct Fault {
    std::string text;
};

inline const float justBelowOne = std::nextafter(1.0F, 0.0F);

// The draw that gives p out of n.
inline float DrawOf(int p, int n)
{
    return (static_cast<float>(p) - 0.5F) / static_cast<float>(n);
}

class HeadlessPlatform : public Platform {
public:
    // Prepared draws alone: one too many throws Fault. The clock stands still.
    HeadlessPlatform() = default;

    // Draws without end, from a seed of 0 to 2^24 - 1. The clock begins there and goes on by one at
    // every look, so that each game of a process is another one.
    explicit HeadlessPlatform(std::uint32_t seed)
        : clock(static_cast<float>(seed))
        , generator_(seed)
    {
    }

    std::deque<float> draws;      // taken before any of the seed's
    std::function<void()> onDraw; // what happens at a draw
    int taken = 0;                // draws so far
    float clock = 43200.5F;

    float DrawRandom() override
    {
        ++taken;
        if (onDraw)
            onDraw();
        if (!draws.empty()) {
            const float draw = draws.front();
            draws.pop_front();
            return draw;
        }
        if (!generator_)
            throw Fault{"a draw that was not expected"};
        constexpr float scale = 1.0F / (1 << 24);
        return static_cast<float>((*generator_)() >> 8) * scale;
    }

    void SeedRandom(float seed) override
    {
        std::uint32_t bits = 0;
        static_assert(sizeof bits == sizeof seed);
        std::memcpy(&bits, &seed, sizeof bits);
        if (generator_)
            generator_->seed(bits);
    }

    float ClockSeconds() override { return generator_ ? clock++ : clock; }

private:
    std::optional<std::mt19937> generator_;
};
