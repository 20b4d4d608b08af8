#include "lexicon/passes.h"

#include "lexicon/letters.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/limits.h"

#include <array>
#include <cassert>
#include <map>
#include <utility>

namespace {

constexpr char mark = '*'; // stands for a letter that a word has used

// The letters of a pool, told by how many there are of each.
class LetterPool {
public:
    explicit LetterPool(std::string_view letters)
    {
        assert(CountLetters(letters) < longLetters_.size());
        strange_.fill(true);
        strange_[mark] = false;
        for (const char byte : letters)
            strange_[static_cast<unsigned char>(byte)] = false;
        while (!letters.empty()) {
            const char32_t letter = TakeFirstLetter(letters);
            const std::size_t place = PlaceOf(letter);
            ++count_[place];
            if (place >= firstLong)
                longLetters_[place - firstLong] = letter;
        }
    }

    // Most words fail at their first six bytes, which are never more than six letters.
    bool CanSpell(std::string_view word) const
    {
        return word.size() >= lettersPerWord
            && !HasStrange(word, std::make_index_sequence<lettersPerWord>{})
            && HasEachOftenEnough(word);
    }

private:
    static constexpr char32_t firstLong = 0x80; // code point of the first with more than one byte

    // Written out for each byte, with no branch.
    template <std::size_t... K>
    bool HasStrange(std::string_view word, std::index_sequence<K...> /*bytes*/) const
    {
        return (strange_[static_cast<unsigned char>(word[K])] + ...) != 0;
    }

    bool HasEachOftenEnough(std::string_view word) const
    {
        auto left = count_;
        for (std::size_t k = 1; k <= lettersPerWord; ++k) {
            if (word.empty())
                return false;
            const char32_t letter = TakeFirstLetter(word);
            auto& leftOfIt = left[PlaceOf(letter)];
            // Meant: a letter once used becomes a mark in the pool, and a record that holds the
            // mark itself finds it there.
            if (leftOfIt > 0)
                --leftOfIt;
            else if (letter != mark || k == 1)
                return false;
        }
        return true;
    }

    // Where the letter is counted: a long one in its own place, or in the next that is free or its
    // own.
    std::size_t PlaceOf(char32_t letter) const
    {
        if (letter < firstLong)
            return letter;
        std::size_t place = letter % longLetters_.size();
        while (longLetters_[place] != 0 && longLetters_[place] != letter)
            place = (place + 1) % longLetters_.size();
        return firstLong + place;
    }

    std::array<bool, 256> strange_; // bytes that no letter of the pool has
    std::array<char32_t, 64> longLetters_{};
    std::array<std::uint8_t, firstLong + 64> count_{};
};

} // namespace

WordCount CountWords(LexiconFile& lexicon)
{
    WordCount counted;
    std::string_view last;
    lexicon.Open();
    while (!lexicon.AtEnd()) {
        if (counted.firstLetters.size() < 3 && !last.empty()) {
            const char32_t letter = TakeFirstLetter(last);
            if (counted.firstLetters.find(letter) == std::u32string::npos)
                counted.firstLetters += letter;
        }
        last = lexicon.ReadRecord();
        if (counted.records == largestCount)
            throw LexiconError("the word list has more records than can be counted");
        ++counted.records;
    }
    counted.last = last;
    lexicon.Close();
    return counted;
}

std::optional<std::string> PickRandomWord(LexiconFile& lexicon, std::int16_t wordCount, float draw)
{
    const int position = static_cast<int>(static_cast<double>(draw) * wordCount);
    std::optional<std::string> word;
    lexicon.Open();
    for (int read = 1; read < position; ++read)
        lexicon.ReadRecord();
    if (position > 0)
        word = lexicon.ReadRecord();
    lexicon.Close();
    return word;
}

double ChanceOfThreeFirstLetters(LexiconFile& lexicon, std::int16_t wordCount)
{
    std::map<char32_t, int> records;
    lexicon.Open();
    for (int read = 1; read < wordCount; ++read) {
        std::string_view record = lexicon.ReadRecord();
        if (!record.empty())
            ++records[TakeFirstLetter(record)];
    }
    lexicon.Close();
    // The sums of the products of one, two and three different shares.
    double ones = 0;
    double twos = 0;
    double threes = 0;
    for (const auto& [letter, count] : records) {
        const double share = static_cast<double>(count) / wordCount;
        threes += twos * share;
        twos += ones * share;
        ones += share;
    }
    return 6 * threes; // in any order
}

std::int16_t CollectCandidates(LexiconFile& lexicon, std::int16_t wordCount, std::string_view pool,
    std::span<std::string> slots)
{
    const LetterPool letters(pool);
    std::size_t found = 0;
    lexicon.Open();
    for (int read = 0; read < wordCount; ++read) {
        const std::string_view word = lexicon.ReadRecord();
        if (!letters.CanSpell(word))
            continue;
        if (found == slots.size())
            throw LexiconError("the letters can make more words than the list of candidates holds");
        slots[found] = word;
        ++found;
    }
    lexicon.Close();
    return static_cast<std::int16_t>(found);
}

bool FindWord(LexiconFile& openLexicon, std::string_view word)
{
    while (!openLexicon.AtEnd()) {
        if (openLexicon.ReadRecord() == word)
            return true;
    }
    return false;
}

bool CanSpell(std::string_view letters, std::string_view word)
{
    return LetterPool(letters).CanSpell(word);
}
