// Chance and a clock that give the same games everywhere: for tests, timings and measured play.
#pragma once

#include "game/platform.h"

#include <bit>
#include <cstdint>
#include <random>

class SeededPlatform : public Platform {
public:
    // A seed from 0 to 2^24 - 1. The clock begins there and goes on by one at every look, so that
    // each game of a process is another one.
    explicit SeededPlatform(std::uint32_t seed)
        : generator_(seed)
        , clock_(static_cast<float>(seed))
    {
    }

    float DrawRandom() override
    {
        constexpr float scale = 1.0F / (1 << 24);
        return static_cast<float>(generator_() >> 8) * scale;
    }
    void SeedRandom(float seed) override { generator_.seed(std::bit_cast<std::uint32_t>(seed)); }
    float ClockSeconds() override { return clock_++; }

private:
    std::mt19937 generator_;
    float clock_;
};
