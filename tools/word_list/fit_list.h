// Makes a word list fit the game.
#pragma once

#include "tools/word_list/largest_game.h"

#include <string>

struct KnownWord {
    std::string word;
    int rarity = 0; // the larger, the fewer people know it
};

using KnownWords = std::vector<KnownWord>;

Words WordsOf(const KnownWords& list);

// While a game has more than `mostCandidates`, words leave: those of the largest size first, of
// these the one that most of the games that are too large find, and of several the first by code
// points. Returns the words that have left, the first to leave first.
KnownWords LeaveWords(KnownWords& list, std::size_t mostCandidates);
