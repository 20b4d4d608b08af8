#include "tools/word_list/letter_groups.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <stdexcept>

namespace {

// For each character its letter, by the number of words that hold it.
std::array<unsigned, 256> NumberLetters(const std::vector<std::string>& words)
{
    std::array<int, 256> holders{};
    for (const std::string& word : words) {
        for (std::size_t k = 0; k < word.size(); ++k) {
            if (word.find(word[k]) == k)
                ++holders[static_cast<unsigned char>(word[k])];
        }
    }
    std::array<std::size_t, 256> order{};
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
        [&](std::size_t left, std::size_t right) { return holders[left] > holders[right]; });
    if (holders[order[mostLetters]] > 0)
        throw std::invalid_argument("the list holds more than 64 different letters");
    std::array<unsigned, 256> numbers{};
    for (unsigned k = 0; k < mostLetters; ++k)
        numbers[order[k]] = k;
    return numbers;
}

LetterCounts CountLetters(const std::string& word, const std::array<unsigned, 256>& numbers)
{
    LetterCounts counts;
    for (const char letter : word) {
        const std::uint64_t bit = std::uint64_t{1} << numbers[static_cast<unsigned char>(letter)];
        std::size_t n = 0;
        while ((counts.atLeast[n] & bit) != 0)
            ++n;
        counts.atLeast[n] |= bit;
    }
    return counts;
}

} // namespace

bool LetterCounts::Holds(const LetterCounts& word) const
{
    std::uint64_t missing = 0;
    for (std::size_t n = 0; n < atLeast.size(); ++n)
        missing |= word.atLeast[n] & ~atLeast[n];
    return missing == 0;
}

// There are more than n of a letter when one side has i of it and the other one the rest of n + 1.
LetterCounts operator+(const LetterCounts& left, const LetterCounts& right)
{
    LetterCounts sum;
    for (std::size_t n = 0; n < sum.atLeast.size(); ++n) {
        std::uint64_t more = left.atLeast[n] | right.atLeast[n];
        for (std::size_t i = 0; i < n; ++i)
            more |= left.atLeast[i] & right.atLeast[n - 1 - i];
        sum.atLeast[n] = more;
    }
    return sum;
}

std::vector<LetterGroup> GroupByLetters(const std::vector<std::string>& words)
{
    const std::array<unsigned, 256> numbers = NumberLetters(words);
    std::map<std::string, LetterGroup> groups;
    for (const std::string& word : words) {
        std::string letters = word;
        std::sort(letters.begin(), letters.end());
        LetterGroup& group = groups[letters];
        if (group.words.empty())
            group.letters = CountLetters(word, numbers);
        group.words.push_back(word);
    }
    std::vector<LetterGroup> list;
    list.reserve(groups.size());
    for (auto& [letters, group] : groups)
        list.push_back(std::move(group));
    return list;
}

int CountMade(const std::vector<LetterGroup>& groups, const LetterCounts& letters)
{
    std::size_t count = 0;
    for (const LetterGroup& group : groups) {
        if (letters.Holds(group.letters))
            count += group.words.size();
    }
    return static_cast<int>(count);
}
