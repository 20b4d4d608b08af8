// How many words some letters can make at most, by a look-up.
//
// A look-up in the table of all sets of the twenty commonest letters gives the words of common
// letters alone, none twice. Every other word holds something special, a rarer letter or a common
// one twice, and is booked under one such special; each special has a table of its own. Letters
// then make at most what the table of the common letters tells and the tables of their specials.
#pragma once

#include "tools/word_list/letter_groups.h"

#include <array>
#include <cstdint>
#include <vector>

class LetterSetBound {
public:
    explicit LetterSetBound(const std::vector<LetterGroup>& groups);

    // The set of the common letters among the letters, a bit for each.
    std::uint32_t CommonSet(const LetterCounts& letters) const;

    // The most that three words can make whose common letters together are this set.
    int ForThreeWords(std::uint32_t commonSet) const { return ofThree_[commonSet]; }

    // The most that three words can make of which two have this set of common letters together.
    int ForTwoWords(std::uint32_t commonSet) const { return ofTwo_[commonSet]; }

    // The most that these letters can make. Near the truth, and slower than the others.
    int ForLetters(const LetterCounts& letters) const;

private:
    using Table = std::vector<std::uint16_t>; // for each set of common letters a number of words

    Table& TableFor(const LetterCounts& word);
    void FillOfThree();
    void FillOfTwo();

    Table plain_;
    std::array<Table, mostLetters> withRareLetter_; // empty where no word is booked
    std::array<Table, mostLetters> withTwice_;
    Table ofThree_;
    Table ofTwo_;
};
