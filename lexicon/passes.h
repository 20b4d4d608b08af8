// The passes over the word list. Each but FindWord opens the file, reads from its first record and
// closes it, unless it throws; nothing is kept between passes. All throw LexiconError when the list
// cannot be read, or ends before the records that it was counted to have.
#pragma once

#include <bitset>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

class LexiconFile;

// The first letters that a position can draw: those of all records but the last.
using FirstLetters = std::bitset<256>;

// Counts the records into `wordCount` and leaves the last one in `currentWord`. Throws LexiconError
// at the record behind number 32767.
FirstLetters CountWords(LexiconFile& lexicon, std::int16_t& wordCount, std::string& currentWord);

// Leaves the record at position draw * wordCount in `currentWord`, for a draw of at least 0 and
// below 1. Position 0 reads nothing, so the word that stood there stays.
void PickRandomWord(
    LexiconFile& lexicon, std::int16_t wordCount, float draw, std::string& currentWord);

// Appends to `candidates`, of which `count` are in use, the records whose first six letters can be
// spelled from the pool. Throws LexiconError when one more would not fit.
void CollectCandidates(LexiconFile& lexicon, std::int16_t wordCount, std::string_view pool,
    std::span<std::string> candidates, std::int16_t& count);

// Reads on in an open word list until a record equals the word; the file stays open, and what is
// behind the word is left unread.
bool FindWord(LexiconFile& openLexicon, std::string_view word);

// What makes a record a candidate: the letters, each taken once, spell its first six.
bool CanSpell(std::string_view letters, std::string_view word);
