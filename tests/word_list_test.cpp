// The word list that the game is shipped with.
#include "lexicon/lexicon_file.h"
#include "lexicon/passes.h"
#include "tools/word_list/largest_game.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr int mostCandidates = 2000;

class WordList : public testing::Test {
protected:
    WordList()
    {
        counted = CountWords(file);
        file.Open();
        while (!file.AtEnd())
            words.emplace_back(file.ReadRecord());
        file.Close();
    }

    // How many candidates a game with these hidden words finds; throws where they do not fit.
    int CountCandidates(const std::string& hiddenWords)
    {
        return CollectCandidates(file, counted.records, hiddenWords, candidates);
    }

    LexiconFile file{QUORVEL_WORD_LIST};
    WordCount counted;
    std::vector<std::string> words;
    std::array<std::string, mostCandidates> candidates;
};

} // namespace

TEST_F(WordList, HoldsWordsOfSixSmallLettersEachOnce)
{
    std::set<std::string> seen;
    for (const std::string& word : words) {
        EXPECT_EQ(word.size(), 6U) << word;
        EXPECT_EQ(word.find_first_not_of("abcdefghijklmnopqrstuvwxyz"), std::string::npos) << word;
        EXPECT_TRUE(seen.insert(word).second) << word << " stands there twice";
    }
    EXPECT_GE(counted.firstLetters.size(), 3U);
}

// A change of the list that moves the largest game needs a new figure here and in
// docs/word-list.md. No game finds fewer than its own three words.
TEST_F(WordList, ExtremeGamesFindWhatIsProved)
{
    const std::optional<LargeGame> largest = FindLargestGame(words);
    ASSERT_TRUE(largest);
    const auto& [first, second, third] = largest->hiddenWords;
    EXPECT_EQ(CountCandidates(first + second + third), 2000);
    EXPECT_EQ(largest->candidates.size(), 2000U) << first << ", " << second << ", " << third;
    EXPECT_EQ(CountCandidates("attaintanninpatina"), 3);
}
