// The words of a list, grouped by the letters they are made of.
//
// Two words of the same letters are made by the same games, so a search over groups answers for all
// words, and there are fewer groups than words.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// How many there are of each letter. Bit k of atLeast[n] tells that there are more than n of
// letter k, and numbers beyond six, the length of a word, make no difference to any word.
struct LetterCounts {
    std::array<std::uint64_t, 6> atLeast{};

    bool Holds(const LetterCounts& word) const;
};

LetterCounts operator+(const LetterCounts& left, const LetterCounts& right);

struct LetterGroup {
    LetterCounts letters;
    std::vector<std::string> words;
};

constexpr std::size_t mostLetters = 64; // different letters in a list, the bits of a LetterCounts

// Letter 0 is the one that most words hold, letter 1 the next. Words are six letters long.
// Throws std::invalid_argument for more than mostLetters different letters.
std::vector<LetterGroup> GroupByLetters(const std::vector<std::string>& words);

// How many words can be made from the letters.
int CountMade(const std::vector<LetterGroup>& groups, const LetterCounts& letters);
