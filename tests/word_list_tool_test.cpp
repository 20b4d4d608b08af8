// The check of a word list: its rules, and the search for the largest games.
#include "lexicon/passes.h"
#include "tools/word_list/list_rules.h"
#include "tools/word_list/trios.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

using Words = std::vector<std::string>;

// What the trios with each stock of letters make, the most first, by trying every trio.
std::vector<int> TryEveryTrio(const Words& words)
{
    std::map<std::string, int> makes;
    for (const std::string& first : words) {
        for (const std::string& second : words) {
            for (const std::string& third : words) {
                if (first.front() >= second.front() || second.front() >= third.front())
                    continue;
                std::string letters = first + second + third;
                std::sort(letters.begin(), letters.end());
                makes[letters] = static_cast<int>(std::count_if(words.begin(), words.end(),
                    [&](const std::string& word) { return CanSpell(letters, word); }));
            }
        }
    }
    std::vector<int> sorted;
    for (const auto& [letters, count] : makes)
        sorted.push_back(count);
    std::sort(sorted.rbegin(), sorted.rend());
    return sorted;
}

// Words of few letters share many of them and have doubles; words of many letters have neither.
// Each stands there backwards too, of the same letters, and one stands there twice.
Words DrawWords(const std::string& alphabet, std::mt19937& draw)
{
    Words words;
    for (int k = 0; k < 19; ++k) {
        std::string word;
        while (word.size() < 6)
            word += alphabet[draw() % alphabet.size()];
        words.push_back(word);
        words.emplace_back(word.rbegin(), word.rend());
    }
    words.push_back(words.front());
    return words;
}

} // namespace

TEST(WordListTool, FindsTheTriosThatMakeTheMost)
{
    std::mt19937 draw(1);
    for (const std::string alphabet : {"abcdefghijklmnopqrstuvwxyzABCDEF", "abcdefghi"}) {
        const Words words = DrawWords(alphabet, draw);
        std::vector<int> expected = TryEveryTrio(words);
        expected.resize(400);
        std::vector<int> found;
        for (const Trio& trio : LargestTrios(GroupByLetters(words), expected.size()))
            found.push_back(trio.makes);
        EXPECT_EQ(found, expected) << alphabet;
    }
}

TEST(WordListTool, NamesWhatBreaksTheRules)
{
    const Words good = {"planet", "garden", "simple", "purple"};
    const auto with = [&](const std::string& record) {
        Words words = good;
        words.push_back(record);
        return words;
    };
    struct Row {
        Words records;
        Words faults;
    };
    for (const Row& row : {
             Row{good, {}},
             Row{with("planet"), {}},
             Row{with("seven77"), {"Record 5, \"seven77\", takes 7 bytes and not six."}},
             Row{with(""), {"Record 5, \"\", is empty."}},
             Row{with("a*bcde"),
                 {"Record 5, \"a*bcde\", holds a character that cannot be a letter of the game."}},
             Row{{"planet", "garden", "simple"},
                 {"Its records, without the last, have fewer than three first letters."}},
         })
        EXPECT_EQ(FindFaults(row.records), row.faults);
    Words many(32764, "planet");
    many.insert(many.end(), {"garden", "simple", "purple"});
    EXPECT_TRUE(FindFaults(many).empty());
    many.push_back("simple");
    EXPECT_EQ(FindFaults(many), Words{"It has 32768 records; the game counts to 32767."});
    EXPECT_EQ(FindFaults(Words(1000, "short")).size(), 12U); // ten, the rest, the first letters
}
