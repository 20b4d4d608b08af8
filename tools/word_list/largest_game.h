// The games of a word list that find the most candidates.
//
// How many candidates a game finds is decided by the 18 letters of its hidden words, so a list is
// proved when the largest of all its games has no more than there is room for.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

using Words = std::vector<std::string>; // of six letters each

struct LargeGame {
    std::array<std::string, 3> hiddenWords; // with three different first letters
    std::vector<std::size_t> candidates;    // their places in the list
};

// Calls `found` for the games with more candidates than the bar, and for one only of those that
// find the same. What `found` returns is the bar from then on. None is passed over, so the search
// is a proof; in which order they are found depends on the words alone.
void FindLargeGames(
    const Words& words, std::size_t bar, const std::function<std::size_t(LargeGame)>& found);

// The search ends early at a game that has `enough` candidates. Empty when no three words have
// three first letters.
std::optional<LargeGame> FindLargestGame(
    const Words& words, std::size_t enough = std::numeric_limits<std::size_t>::max());
