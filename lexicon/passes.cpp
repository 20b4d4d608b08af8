#include "lexicon/passes.h"

#include "lexicon/lexicon_file.h"

#include <array>
#include <limits>

namespace {

constexpr std::size_t lettersPerWord = 6;
constexpr unsigned char taken = '*'; // stands for a letter that a word has used

// The letters of a pool, told by how many there are of each.
class LetterPool {
public:
    explicit LetterPool(std::string_view letters)
    {
        missing_.fill(true);
        missing_[taken] = false;
        for (const char letter : letters) {
            ++left_[static_cast<unsigned char>(letter)];
            missing_[static_cast<unsigned char>(letter)] = false;
        }
    }

    bool CanSpell(std::string_view word) const
    {
        return word.size() >= lettersPerWord && HasAllLetters(word) && HasEachOftenEnough(word);
    }

private:
    // Most words fail here: one look-up a letter and one branch a word.
    bool HasAllLetters(std::string_view word) const
    {
        bool missing = false;
        for (std::size_t k = 0; k < lettersPerWord; ++k)
            missing |= missing_[static_cast<unsigned char>(word[k])];
        return !missing;
    }

    // Meant: a letter once used becomes a mark in the pool, and a record that holds the mark itself
    // finds it there.
    bool HasEachOftenEnough(std::string_view word) const
    {
        auto left = left_;
        for (std::size_t k = 0; k < lettersPerWord; ++k) {
            const auto letter = static_cast<unsigned char>(word[k]);
            if (left[letter] == 0)
                return false;
            --left[letter];
            ++left[taken];
        }
        return true;
    }

    std::array<std::uint8_t, 256> left_{};
    std::array<bool, 256> missing_{};
};

} // namespace

FirstLetters CountWords(LexiconFile& lexicon, std::int16_t& wordCount, std::string& currentWord)
{
    FirstLetters drawable;
    wordCount = 0;
    lexicon.Open();
    while (!lexicon.AtEnd()) {
        if (wordCount > 0 && !currentWord.empty())
            drawable.set(static_cast<unsigned char>(currentWord.front()));
        currentWord = lexicon.ReadRecord();
        if (wordCount == std::numeric_limits<std::int16_t>::max())
            throw LexiconError("the word list has more than 32767 records");
        ++wordCount;
    }
    lexicon.Close();
    return drawable;
}

void PickRandomWord(
    LexiconFile& lexicon, std::int16_t wordCount, float draw, std::string& currentWord)
{
    const int position = static_cast<int>(static_cast<double>(draw) * wordCount);
    lexicon.Open();
    for (int read = 1; read < position; ++read)
        lexicon.ReadRecord();
    if (position > 0)
        currentWord = lexicon.ReadRecord();
    lexicon.Close();
}

void CollectCandidates(LexiconFile& lexicon, std::int16_t wordCount, std::string_view pool,
    std::span<std::string> candidates, std::int16_t& count)
{
    const LetterPool letters(pool);
    lexicon.Open();
    for (int read = 0; read < wordCount; ++read) {
        const std::string_view word = lexicon.ReadRecord();
        if (!letters.CanSpell(word))
            continue;
        if (static_cast<std::size_t>(count) == candidates.size())
            throw LexiconError("the letters can make more words than the list of candidates holds");
        candidates[static_cast<std::size_t>(count)] = word;
        ++count;
    }
    lexicon.Close();
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
