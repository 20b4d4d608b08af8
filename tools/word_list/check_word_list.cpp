// Checks a word list: whether it keeps the rules, and how many words a game can find in it.
//
//   check_word_list FILE                all of it
//   check_word_list --rules-only FILE   the rules alone
//
// Status 0: the game can play with the list. 1: it cannot. 2: the call makes no sense.

#include "lexicon/lexicon_file.h"
#include "tools/word_list/list_rules.h"
#include "tools/word_list/trios.h"

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace {

constexpr int mostCandidates = 2000;
constexpr int fewestCandidates = 300; // with fewer, the game looks through the list again
constexpr std::size_t triosShown = 10;

void Print(const std::string& line)
{
    std::puts(line.c_str());
}

std::string Describe(const Trio& trio)
{
    return std::to_string(trio.makes) + " (" + trio.words[0] + ", " + trio.words[1] + ", "
        + trio.words[2] + ")";
}

bool KeepsRules(const std::vector<std::string>& records)
{
    const std::vector<std::string> faults = FindFaults(records);
    for (const std::string& fault : faults)
        Print(fault);
    if (!faults.empty())
        return false;
    Print("It keeps the rules: " + std::to_string(records.size()) + " words of six letters.");
    if (const std::size_t repeats = CountRepeats(records); repeats > 0)
        Print(std::to_string(repeats) + " of them stand there more than once. The game plays on.");
    return true;
}

bool StaysInBounds(const std::vector<std::string>& words)
{
    const std::vector<LetterGroup> groups = GroupByLetters(words);
    const Trio smallest = SmallTrio(groups);
    const int passes = (fewestCandidates + smallest.makes - 1) / smallest.makes;
    Print("The fewest words that three hidden words make is "
        + std::string(smallest.makes == 3 ? "" : "at most ") + Describe(smallest)
        + "; such a game goes through the list " + std::to_string(passes) + " times.");
    const std::vector<Trio> largest = LargestTrios(groups, triosShown);
    Print("The most is " + Describe(largest.front()) + "; a game has room for "
        + std::to_string(mostCandidates) + ". After it come, with other letters:");
    for (std::size_t k = 1; k < largest.size(); ++k)
        Print("  " + Describe(largest[k]));
    if (largest.front().makes <= mostCandidates)
        return true;
    Print("That is too many: a game with these hidden words would end before it began.");
    return false;
}

} // namespace

int main(int count, char** arguments)
{
    const std::vector<std::string> words(arguments + 1, arguments + count);
    const bool rulesOnly = words.size() == 2 && words[0] == "--rules-only";
    if (!rulesOnly && words.size() != 1) {
        std::fputs("usage: check_word_list [--rules-only] FILE\n", stderr);
        return 2;
    }
    try {
        const std::vector<std::string> records = ReadRecords(words.back());
        return KeepsRules(records) && (rulesOnly || StaysInBounds(records)) ? 0 : 1;
    } catch (const std::exception& error) {
        Print(error.what());
        return 1;
    }
}
