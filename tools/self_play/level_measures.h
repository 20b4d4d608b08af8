// What a level's games come to, and how sure that is.
#pragma once

#include "tools/self_play/played_game.h"

#include <vector>

// The games of one level, one a seed, in the order of the seeds; at least two.
using LevelGames = std::vector<PlayedGame>;

struct LevelMeasures {
    double wordsPer100Goes = 0;
    double pointsPerGo = 0;
    double wordsOfPlayerPer100Goes = 0;
    int claims = 0; // games that ended so

    // Goes until the claim, over those games; 0 when there is none.
    double meanUntilClaim = 0;
    int lowerQuartile = 0;
    int median = 0;
    int upperQuartile = 0;
};

LevelMeasures Measure(const LevelGames& played);

// By how many words per hundred goes one level is ahead of another on the same seeds, and the
// standard error of that.
struct Lead {
    double wordsPer100Goes = 0;
    double standardError = 0;
};

Lead MeasureLead(const LevelGames& ahead, const LevelGames& behind);
