// Checks a word list: whether it keeps the rules, and how many words a game can find in it.
//
//   check_word_list FILE                all of it
//   check_word_list --rules-only FILE   the rules alone
//
// Status 0: the game can play with the list. 1: it cannot. 2: the call makes no sense.

#include "game/board.h"
#include "tools/word_list/largest_game.h"
#include "tools/word_list/list_rules.h"

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace {

void Print(const std::string& line)
{
    std::puts(line.c_str());
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

bool FitsTheGame(const Words& words)
{
    const std::optional<LargeGame> largest = FindLargestGame(words);
    const std::size_t most = largest->candidates.size();
    Print("Its largest game finds " + std::to_string(most) + " words, of "
        + std::to_string(mostCandidates) + " that a game has room for: " + largest->hiddenWords[0]
        + ", " + largest->hiddenWords[1] + ", " + largest->hiddenWords[2] + ".");
    if (most <= mostCandidates)
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
        return KeepsRules(records) && (rulesOnly || FitsTheGame(records)) ? 0 : 1;
    } catch (const std::exception& error) {
        Print(error.what());
        return 1;
    }
}
