// Trios: three words that can be hidden together, and how many words of the list their letters
// make.
//
// The number of a game's candidates is decided by its trio, so the greatest number over all trios
// tells whether the list of candidates can ever run over, and the smallest how often it repeats.
#pragma once

#include "tools/word_list/letter_groups.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

struct Trio {
    std::array<std::string, 3> words; // with three different first letters
    LetterCounts letters;             // of the three together
    int makes = 0;                    // words of the list, the three among them
};

// Three groups as their places in the list of groups; a group may stand there more than once.
using GroupTrio = std::array<std::size_t, 3>;

// The trio of these groups. Empty when the words of the groups have no three first letters.
std::optional<Trio> MakeTrio(const std::vector<LetterGroup>& groups, const GroupTrio& places);

// The trios that make the most, the greatest first; of several with the same letters one stands for
// all. Looks at every trio that could be among them, so the answer is exact.
std::vector<Trio> LargestTrios(const std::vector<LetterGroup>& groups, std::size_t howMany);

// A trio that makes few words, found by steady descent from several starts. Every trio makes its
// own three words, so a result of three is exact; a larger one is an upper limit of the smallest.
Trio SmallTrio(const std::vector<LetterGroup>& groups);
