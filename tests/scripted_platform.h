// Chance as a script: the draws are prepared, and one too many is a failure.
#pragma once

#include "game/platform.h"

#include <gtest/gtest.h>

#include <cmath>
#include <deque>
#include <vector>

inline const float justBelowOne = std::nextafter(1.0F, 0.0F);

// The draw that gives p out of n.
inline float DrawOf(int p, int n)
{
    return (static_cast<float>(p) - 0.5F) / static_cast<float>(n);
}

class ScriptedPlatform : public Platform {
public:
    std::deque<float> draws;
    std::vector<float> seeds;

    void Play(int times, float draw)
    {
        draws.insert(draws.end(), static_cast<std::size_t>(times), draw);
    }

    float DrawRandom() override
    {
        if (draws.empty()) {
            ADD_FAILURE() << "a draw that was not expected";
            return 0.5F;
        }
        const float draw = draws.front();
        draws.pop_front();
        return draw;
    }
    void SeedRandom(float seed) override { seeds.push_back(seed); }
    float ClockSeconds() override { return 43200.5F; }
};
