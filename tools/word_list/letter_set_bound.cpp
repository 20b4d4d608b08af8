#include "tools/word_list/letter_set_bound.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <numeric>

namespace {

constexpr int commonLetters = 20;
constexpr std::uint32_t numberOfSets = std::uint32_t{1} << commonLetters;
constexpr std::uint64_t common = numberOfSets - 1;
constexpr int lettersPerWord = 6;
constexpr int lettersOfThreeWords = 18;

// Turns the numbers of words with exactly a set into those with any part of it.
void AddUpParts(std::vector<std::uint16_t>& table)
{
    for (std::uint32_t letter = 1; letter < table.size(); letter <<= 1) {
        for (std::uint32_t set = 0; set < table.size(); ++set) {
            if ((set & letter) != 0)
                table[set] = static_cast<std::uint16_t>(table[set] + table[set ^ letter]);
        }
    }
}

// Calls `visit` with the place of each bit.
template <typename Visit> void ForEachBit(std::uint64_t bits, Visit visit)
{
    for (; bits != 0; bits &= bits - 1)
        visit(static_cast<std::size_t>(std::countr_zero(bits)));
}

} // namespace

LetterSetBound::LetterSetBound(const std::vector<LetterGroup>& groups)
    : plain_(numberOfSets)
    , ofThree_(numberOfSets)
{
    for (const LetterGroup& group : groups) {
        Table& table = TableFor(group.letters);
        table.resize(numberOfSets);
        std::uint16_t& words = table[CommonSet(group.letters)];
        words = static_cast<std::uint16_t>(words + group.words.size());
    }
    AddUpParts(plain_);
    for (std::size_t k = 0; k < mostLetters; ++k) {
        AddUpParts(withRareLetter_[k]);
        AddUpParts(withTwice_[k]);
    }
    FillOfThree();
    FillOfTwo();
}

std::uint32_t LetterSetBound::CommonSet(const LetterCounts& letters) const
{
    return static_cast<std::uint32_t>(letters.atLeast[0] & common);
}

int LetterSetBound::ForLetters(const LetterCounts& letters) const
{
    const std::uint32_t set = CommonSet(letters);
    int words = plain_[set];
    const auto add = [&](const Table& table) {
        if (!table.empty())
            words += table[set];
    };
    ForEachBit(letters.atLeast[0] & ~common, [&](std::size_t k) { add(withRareLetter_[k]); });
    ForEachBit(letters.atLeast[1] & common, [&](std::size_t k) { add(withTwice_[k]); });
    return words;
}

// The word is booked under the rarest of its specials.
LetterSetBound::Table& LetterSetBound::TableFor(const LetterCounts& word)
{
    const auto last = [](std::uint64_t bits) { return std::bit_width(bits) - 1U; };
    if ((word.atLeast[0] & ~common) != 0)
        return withRareLetter_[last(word.atLeast[0])];
    if (word.atLeast[1] != 0)
        return withTwice_[last(word.atLeast[1])];
    return plain_;
}

// What a set leaves of eighteen letters can be specials; the best of them are taken.
void LetterSetBound::FillOfThree()
{
    std::vector<const Table*> specials;
    for (const auto* tables : {&withRareLetter_, &withTwice_}) {
        for (const Table& table : *tables) {
            if (!table.empty())
                specials.push_back(&table);
        }
    }
    std::vector<int> words(specials.size());
    for (std::uint32_t set = 0; set < numberOfSets; ++set) {
        const int places = lettersOfThreeWords - std::popcount(set);
        if (places < 0)
            continue;
        std::transform(specials.begin(), specials.end(), words.begin(),
            [&](const Table* table) { return (*table)[set]; });
        const auto taken = words.begin() + std::min<std::ptrdiff_t>(places, std::ssize(words));
        std::nth_element(words.begin(), taken, words.end(), std::greater<>{});
        // No three words make more than the list holds, 32767, so the sum may stop there.
        const int sum = std::accumulate(words.begin(), taken, static_cast<int>(plain_[set]));
        ofThree_[set] = static_cast<std::uint16_t>(std::min(sum, 0xFFFF));
    }
}

// A third word adds one letter six times; each round lets every set look one letter further.
void LetterSetBound::FillOfTwo()
{
    ofTwo_ = ofThree_;
    for (int round = 0; round < lettersPerWord; ++round) {
        for (std::uint32_t set = 0; set < numberOfSets; ++set) {
            for (std::uint32_t letter = 1; letter < numberOfSets; letter <<= 1)
                ofTwo_[set] = std::max(ofTwo_[set], ofTwo_[set | letter]);
        }
    }
}
