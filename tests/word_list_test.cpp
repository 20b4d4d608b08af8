// The word list that the game is shipped with.
#include "lexicon/passes.h"
#include "tools/word_list/largest_game.h"
#include "tools/word_list/list_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

TEST(WordList, BreaksNoRule)
{
    EXPECT_EQ(FindFaults(ReadRecords(QUORVEL_WORD_LIST)), Words{});
}

// A change of the list that moves the largest game needs a new figure here and in
// docs/word-list.md. No game finds fewer than its own three words.
TEST(WordList, ExtremeGamesFindWhatIsProved)
{
    const Words words = ReadRecords(QUORVEL_WORD_LIST);
    const auto candidates = [&words](const std::string& letters) {
        return std::ranges::count_if(
            words, [&](const std::string& word) { return CanSpell(letters, word); });
    };
    const auto [first, second, third] = FindLargestGame(words).value().hiddenWords;
    EXPECT_EQ(candidates(first + second + third), 2000) << first << ", " << second << ", " << third;
    EXPECT_EQ(candidates("attaintanninpatina"), 3);
}
