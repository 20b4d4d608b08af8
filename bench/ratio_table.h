// One table of what Google Benchmark has measured, with the ratios to the yardsticks.
#pragma once

#include <functional>
#include <string>
#include <vector>

// What is timed beside what. A yardstick that makes no sense for it is left out.
struct Timing {
    std::string what;
    std::string work; // the counts that must not move
    std::function<void()> game;
    std::function<void()> plain = {};
    std::function<void()> floor = {};
};

// Takes the arguments of Google Benchmark. Returns what main() is to return.
int PrintRatios(const std::vector<Timing>& timings, int argc, char** argv);
