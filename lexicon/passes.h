// The passes over the word list. Each but FindWord opens the file, reads from its first record and
// closes it, unless it throws; nothing is kept between passes. All throw LexiconError when the list
// cannot be read, or ends before the records that it was counted to have.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

class LexiconFile;

struct WordCount {
    std::int16_t records = 0;
    std::string last; // of the records; "" when there is none
    // Different first letters that a position can draw, which are those of all records but the
    // last; three of them, if there are more.
    std::u32string firstLetters;
};

// Throws LexiconError at the record after number `largestCount`.
WordCount CountWords(LexiconFile& lexicon);

// The record at position draw * wordCount, for a draw of at least 0 and below 1. Position 0 reads
// nothing and gives nothing.
std::optional<std::string> PickRandomWord(LexiconFile& lexicon, std::int16_t wordCount, float draw);

// How likely three picks are to have three different first letters, 0 to 1, but for what position 0
// adds.
double ChanceOfThreeFirstLetters(LexiconFile& lexicon, std::int16_t wordCount);

// Fills the slots from the first with the records whose first six letters can be spelled from the
// pool; gives their number. Throws LexiconError when there are more than slots.
std::int16_t CollectCandidates(LexiconFile& lexicon, std::int16_t wordCount, std::string_view pool,
    std::span<std::string> slots);

// Reads on in an open word list until a record equals the word; the file stays open, and what is
// after the word is left unread.
bool FindWord(LexiconFile& openLexicon, std::string_view word);

// What makes a record a candidate: the letters, each taken once, spell its first six.
bool CanSpell(std::string_view letters, std::string_view word);
