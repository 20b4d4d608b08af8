#include "tools/word_list/list_rules.h"

#include "lexicon/letters.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/limits.h"

#include <set>

namespace {

constexpr std::size_t fewestFirstLetters = 3;
constexpr std::size_t mostNamed = 10; // records named one by one, before the rest is only counted

// The game marks a letter that a word has used with an asterisk, and a combining accent would stand
// in a box of its own.
bool CanBeALetter(char32_t letter)
{
    const bool isControl = letter <= U' ' || (letter >= 0x7F && letter <= 0xA0);
    const bool isAccent = letter >= 0x300 && letter <= 0x36F;
    return !isControl && !isAccent && letter != U'*';
}

// What is wrong with the record, or nothing.
std::string FaultOf(std::string_view record)
{
    if (record.empty())
        return "is empty";
    if (CountLetters(record) != lettersPerWord)
        return "has " + std::to_string(CountLetters(record)) + " letters and not six";
    while (!record.empty()) {
        if (!CanBeALetter(TakeFirstLetter(record)))
            return "holds a character that cannot be a letter of the game";
    }
    return {};
}

// With fewer first letters, three words to hide cannot be drawn. The last record does not count:
// it can be drawn only as the first of the three.
bool HasEnoughFirstLetters(const std::vector<std::string>& records)
{
    std::set<char32_t> firstLetters;
    for (std::size_t k = 0; k + 1 < records.size(); ++k) {
        std::string_view record = records[k];
        if (!record.empty())
            firstLetters.insert(TakeFirstLetter(record));
    }
    return firstLetters.size() >= fewestFirstLetters;
}

} // namespace

std::vector<std::string> ReadRecords(const std::filesystem::path& list)
{
    std::vector<std::string> records;
    LexiconFile file(list);
    file.Open();
    while (!file.AtEnd())
        records.emplace_back(file.ReadRecord());
    file.Close();
    return records;
}

std::vector<std::string> FindFaults(const std::vector<std::string>& records)
{
    std::vector<std::string> faults;
    if (records.size() > largestCount)
        faults.push_back("It has " + std::to_string(records.size())
            + " records; the game counts to " + std::to_string(largestCount) + ".");
    std::size_t broken = 0;
    for (std::size_t k = 0; k < records.size(); ++k) {
        const std::string fault = FaultOf(records[k]);
        if (!fault.empty() && ++broken <= mostNamed)
            faults.push_back(
                "Record " + std::to_string(k + 1) + ", \"" + records[k] + "\", " + fault + ".");
    }
    if (broken > mostNamed)
        faults.push_back("So it is with " + std::to_string(broken - mostNamed) + " more records.");
    if (!HasEnoughFirstLetters(records))
        faults.emplace_back(
            "Its records, without the last, have fewer than three first letters: add "
            "words with other ones, in front of the last.");
    return faults;
}
