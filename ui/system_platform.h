// Chance and the clock of the machine that the game runs on.
#pragma once

#include "game/platform.h"

#include <random>

class SystemPlatform : public Platform {
public:
    float DrawRandom() override;
    void SeedRandom(float seed) override;
    float ClockSeconds() override;

private:
    std::mt19937 generator_;
};
