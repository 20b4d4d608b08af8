#include "tools/self_play/level_measures.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>

namespace {

template <typename Field> double Sum(const LevelGames& played, Field field)
{
    const auto add = [field](double sum, const PlayedGame& game) { return sum + game.*field; };
    return std::accumulate(played.begin(), played.end(), 0.0, add);
}

// Games differ in length, so a rate is all words over all goes. What one game adds to its error is
// the number of words by which the game strays from the rate, over the mean length of a game.
double Stray(const LevelGames& played, std::size_t place)
{
    const PlayedGame& game = played[place];
    const double goes = Sum(played, &PlayedGame::goes);
    const double rate = Sum(played, &PlayedGame::words) / goes;
    return (game.words - rate * game.goes) / (goes / static_cast<double>(played.size()));
}

} // namespace

LevelMeasures Measure(const LevelGames& played)
{
    const double goes = Sum(played, &PlayedGame::goes);
    LevelMeasures measures;
    measures.wordsPer100Goes = 100 * Sum(played, &PlayedGame::words) / goes;
    measures.pointsPerGo = Sum(played, &PlayedGame::points) / goes;
    measures.wordsOfPlayerPer100Goes = 100 * Sum(played, &PlayedGame::wordsOfPlayer) / goes;

    std::vector<int> untilClaim;
    for (const PlayedGame& game : played) {
        if (game.claimed)
            untilClaim.push_back(game.goes);
    }
    if (untilClaim.empty())
        return measures;
    std::ranges::sort(untilClaim);
    measures.claims = static_cast<int>(untilClaim.size());
    measures.meanUntilClaim
        = std::accumulate(untilClaim.begin(), untilClaim.end(), 0.0) / measures.claims;
    measures.lowerQuartile = untilClaim[untilClaim.size() / 4];
    measures.median = untilClaim[untilClaim.size() / 2];
    measures.upperQuartile = untilClaim[untilClaim.size() * 3 / 4];
    return measures;
}

Lead MeasureLead(const LevelGames& ahead, const LevelGames& behind)
{
    // Both levels begin a seed with the same letters, so the error is that of the differences.
    double squares = 0;
    for (std::size_t place = 0; place < ahead.size(); ++place)
        squares += std::pow(Stray(ahead, place) - Stray(behind, place), 2);
    const auto games = static_cast<double>(ahead.size());
    return {.wordsPer100Goes = Measure(ahead).wordsPer100Goes - Measure(behind).wordsPer100Goes,
        .standardError = 100 * std::sqrt(squares / (games - 1) / games)};
}
