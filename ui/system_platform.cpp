#include "ui/system_platform.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <ctime>

float SystemPlatform::DrawRandom()
{
    // 24 bits are what a float holds exactly, so no draw is rounded up to 1.
    return static_cast<float>(generator_() >> 8) / static_cast<float>(1 << 24);
}

void SystemPlatform::SeedRandom(float seed)
{
    // All bits of the number count, those of its fraction too.
    std::uint32_t bits = 0;
    static_assert(sizeof bits == sizeof seed);
    std::memcpy(&bits, &seed, sizeof bits);
    generator_.seed(bits);
}

float SystemPlatform::ClockSeconds()
{
    using std::chrono::system_clock;
    const system_clock::time_point now = system_clock::now();
    const auto second = std::chrono::floor<std::chrono::seconds>(now);
    const std::time_t time = system_clock::to_time_t(second);
    const std::tm& local = *std::localtime(&time);
    const double whole = local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec;
    const double fraction = std::chrono::duration<double>(now - second).count();
    // A leap second or the rounding to a float would reach midnight.
    const float midnight = 86400;
    return std::min(static_cast<float>(whole + fraction), std::nextafter(midnight, 0.0F));
}
