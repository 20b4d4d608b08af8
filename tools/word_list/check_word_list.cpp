// Checks a word list: whether it keeps the rules, and how many words a game can find in it.
//
//   check_word_list FILE          tells it
//   check_word_list --fit FILE    prints the list, in its order, without the words that have to
//   leave
//                                 it, and the rest on the standard error; a number in front of a
//                                 word says how little it is known, as in "50 planet"
//
// Status 0: the game can play with the list. 1: it cannot. 2: the call makes no sense.
#include "game/board.h"
#include "tools/word_list/fit_list.h"
#include "tools/word_list/list_rules.h"

#include <algorithm>
#include <cstdio>
#include <exception>

namespace {

void Print(std::FILE* out, const std::string& line)
{
    std::fputs((line + '\n').c_str(), out);
}

bool KeepsRules(const Words& words, std::FILE* out)
{
    const std::vector<std::string> faults = FindFaults(words);
    for (const std::string& fault : faults)
        Print(out, fault);
    if (!faults.empty())
        return false;
    Print(out, "It keeps the rules: " + std::to_string(words.size()) + " words of six letters.");
    return true;
}

bool FitsTheGame(const LargeGame& largest, std::FILE* out)
{
    const auto& [first, second, third] = largest.hiddenWords;
    Print(out,
        "Its largest game finds " + std::to_string(largest.candidates.size()) + " words, of "
            + std::to_string(mostCandidates) + " that a game has room for: " + first + ", " + second
            + ", " + third + ".");
    if (largest.candidates.size() <= mostCandidates)
        return true;
    Print(out, "That is too many: a game with these hidden words would end before it began.");
    return false;
}

KnownWord ParseRecord(const std::string& record)
{
    const std::size_t digits = record.find_first_not_of("0123456789");
    if (digits == 0 || digits > 4 || record[digits] != ' ')
        return {.word = record}; // which is no word, if a number stands in front
    return {.word = record.substr(digits + 1), .rarity = std::stoi(record)};
}

constexpr std::size_t mostExamples = 10;

// What has left the list, summed up.
std::string TellLeft(const KnownWords& left)
{
    if (left.empty())
        return "No word has to leave: the largest game fits.";
    std::string line
        = left.size() == 1 ? "1 word leaves" : std::to_string(left.size()) + " words leave";
    line += ", so that the largest game fits";
    line += left.size() > mostExamples ? ", such as" : ":";
    // Evenly from all of them, since those that leave first are alike.
    for (std::size_t k = 0; k < std::min(left.size(), mostExamples); ++k)
        line += (k == 0 ? " " : ", ")
            + left[k * left.size() / std::min(left.size(), mostExamples)].word;
    return line + '.';
}

Words Fit(const Words& records)
{
    KnownWords list;
    std::ranges::transform(records, std::back_inserter(list), ParseRecord);
    if (!FindFaults(WordsOf(list)).empty())
        return WordsOf(list);
    Print(stderr, TellLeft(LeaveWords(list, mostCandidates)));
    for (const KnownWord& word : list)
        Print(stdout, word.word);
    return WordsOf(list);
}

} // namespace

int main(int count, char** arguments)
{
    const Words options(arguments + 1, arguments + count);
    const bool fits = options.size() == 2 && options[0] == "--fit";
    if (!fits && options.size() != 1) {
        std::fputs("usage: check_word_list [--fit] FILE\n", stderr);
        return 2;
    }
    try {
        const Words records = ReadRecords(options.back());
        const Words words = fits ? Fit(records) : records;
        std::FILE* const out = fits ? stderr : stdout;
        if (!KeepsRules(words, out))
            return 1;
        // No game is larger once the words fit.
        const auto largest = fits ? FindLargestGame(words, mostCandidates) : FindLargestGame(words);
        return largest && FitsTheGame(*largest, out) ? 0 : 1;
    } catch (const std::exception& error) {
        Print(stderr, error.what());
        return 1;
    }
}
