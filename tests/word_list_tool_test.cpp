// The check of a word list: its rules, and the search for the largest games.
#include "lexicon/passes.h"
#include "tools/word_list/fit_list.h"
#include "tools/word_list/largest_game.h"
#include "tools/word_list/list_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

// What the games of a list find, as places in it.
using Games = std::set<std::vector<std::size_t>>;

Games TryEveryTrio(const Words& words)
{
    Games games;
    for (const std::string& first : words) {
        for (const std::string& second : words) {
            for (const std::string& third : words) {
                if (first.front() >= second.front() || second.front() >= third.front())
                    continue;
                std::vector<std::size_t> candidates;
                for (std::size_t place = 0; place < words.size(); ++place) {
                    if (CanSpell(first + second + third, words[place]))
                        candidates.push_back(place);
                }
                games.insert(candidates);
            }
        }
    }
    return games;
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

TEST(WordListTool, FindsEveryLargeGame)
{
    std::mt19937 draw(1);
    for (const std::string alphabet : {"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMN", "abcdefghi"}) {
        const Words words = DrawWords(alphabet, draw);
        const Games games = TryEveryTrio(words);
        std::size_t most = 0;
        for (const auto& candidates : games)
            most = std::max(most, candidates.size());
        for (std::size_t bar = most; bar + 4 > most; --bar) {
            Games expected = games;
            std::erase_if(expected, [bar](const auto& game) { return game.size() <= bar; });
            Games found;
            FindLargeGames(words, bar, [&](const LargeGame& game) {
                const auto& [first, second, third] = game.hiddenWords;
                EXPECT_EQ(std::set({first[0], second[0], third[0]}).size(), 3U);
                const std::string letters = first + second + third;
                for (const std::size_t place : game.candidates)
                    EXPECT_TRUE(CanSpell(letters, words[place])) << letters << words[place];
                found.insert(game.candidates);
                return bar;
            });
            EXPECT_EQ(found, expected) << alphabet << " above " << bar;
        }
        EXPECT_EQ(FindLargestGame(words)->candidates.size(), most) << alphabet;
    }
}

// All but the one in capitals have the same letters. Of the two sets of candidates that games find,
// one is without it.
TEST(WordListTool, LeavesOutWhatMakesGamesTooLarge)
{
    const KnownWords all
        = {{"abcdef"}, {"bcdefa"}, {"cdefab"}, {"defabc"}, {"efabcd"}, {"fabcde", 1}, {"GHIJKL"}};
    for (const auto& [room, leave] : {std::pair(7, Words{}), {6, {"fabcde"}},
             {5, {"fabcde", "GHIJKL"}}, {4, {"fabcde", "abcdef", "GHIJKL"}}}) {
        KnownWords list = all;
        EXPECT_EQ(WordsOf(LeaveWords(list, static_cast<std::size_t>(room))), leave) << room;
        EXPECT_EQ(list.size() + leave.size(), all.size());
    }
}

TEST(WordListTool, NamesWhatBreaksTheRules)
{
    constexpr const char* strange = "holds a character that cannot be a letter of the game";
    const Words good = {"planet", "garden", "simple", "purple"};
    const std::pair<const char*, std::string> rows[]
        = {{"planet", ""}, {"bücher", ""}, {"bu\u0308che", strange}, {"a\u00A0bcde", strange},
            {"a\u00A1bcde", ""}, {"a bcde", strange},
            {"a\x7F"
             "bcde",
                strange},
            {"a*bcde", strange}, {"seven77", "has 7 letters and not six"}, {"", "is empty"}};
    for (const auto& [record, fault] : rows) {
        Words records = good;
        records.emplace_back(record);
        Words faults;
        if (!fault.empty())
            faults = {std::string("Record 5, \"") + record + "\", " + fault + "."};
        EXPECT_EQ(FindFaults(records), faults);
    }
    EXPECT_EQ(FindFaults({"planet", "garden", "simple"}),
        Words{"Its records, without the last, have fewer than three first letters: add words with "
              "other ones, in front of the last."});
    Words many(32764, "planet");
    many.insert(many.end(), {"garden", "simple", "purple"});
    EXPECT_TRUE(FindFaults(many).empty());
    many.push_back("simple");
    EXPECT_EQ(FindFaults(many), Words{"It has 32768 records; the game counts to 32767."});
    EXPECT_EQ(FindFaults(Words(1000, "short")).size(), 12U); // ten, the rest, the first letters
}

// No game finds fewer than its own three words. How many the largest finds is in docs/word-list.md.
TEST(WordList, SmallestGameFindsItsOwnWords)
{
    const auto own = [](const std::string& word) { return CanSpell("attaintanninpatina", word); };
    EXPECT_EQ(std::ranges::count_if(ReadRecords(QUORVEL_WORD_LIST), own), 3);
}
