// The word list: what a record is, and the passes over the list.

#include "headless/headless_platform.h"
#include "headless/word_list_file.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/passes.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

std::vector<std::string> Records(const std::filesystem::path& path)
{
    LexiconFile lexicon(path);
    std::vector<std::string> records;
    lexicon.Open();
    while (!lexicon.AtEnd())
        records.emplace_back(lexicon.ReadRecord());
    return records;
}

const std::string longWord(200'000, 'x');

struct RecordCase {
    const char* rule;
    std::string bytes;
    std::vector<std::string> records;
};

TEST(LexiconFile, ReadsRecords)
{
    const RecordCase cases[] = {
        {"an empty file has none", "", {}},
        {"a mark alone is no record", "\xEF\xBB\xBF", {}},
        {"line feeds", "a\nb\n", {"a", "b"}},
        {"no line end behind the last", "a\nb", {"a", "b"}},
        {"carriage returns and line feeds", "a\r\nb\r\n", {"a", "b"}},
        {"carriage returns alone", "a\rb\r", {"a", "b"}},
        {"a mark in front",
            "\xEF\xBB\xBF"
            "a\nb",
            {"a", "b"}},
        {"half a mark is text",
            "\xEF\xBB"
            "a",
            {"\xEF\xBB"
             "a"}},
        {"commas end a field", "a,b,,c", {"a", "b", "", "c"}},
        {"a comma at the line end leaves an empty field", "a,\nb", {"a", "", "b"}},
        {"an empty line is a record", "a\n\nb", {"a", "", "b"}},
        {"blanks in front go, blanks behind stay", "  a b  \n b", {"a b  ", "b"}},
        {"a tab is a letter", "\ta", {"\ta"}},
        {"blanks alone are an empty record", "a\n  ", {"a", ""}},
        {"quotation marks keep commas and line ends", "\"a,b\nc\"\nd", {"a,b\nc", "d"}},
        {"blanks and one comma behind the mark", " \"a\"  ,b", {"a", "b"}},
        {"text behind the mark is the next record", "\"a\"b\nc", {"a", "b", "c"}},
        {"an open quotation runs to the end", "a\n\"b,c\nd\n", {"a", "b,c\nd\n"}},
        {"a mark within a field is text", "a\"b\"\n", {"a\"b\""}},
        {"bytes above 127 and zero", std::string("\xFF\0\n\x80", 4),
            {std::string("\xFF\0", 2), "\x80"}},
        {"records longer than the buffer", longWord + "\n\"" + longWord + "\"\r\na\r\n",
            {longWord, longWord, "a"}},
        {"a line end astride two reads", std::string(65'534, 'x') + "\r\nb",
            {std::string(65'534, 'x'), "b"}},
    };
    for (const RecordCase& row : cases)
        EXPECT_EQ(Records(WordListFile(row.bytes).Path()), row.records) << row.rule;
}

TEST(LexiconFile, RefusesWhatItCannotRead)
{
    const WordListFile list("a\n");
    LexiconFile lexicon(list.Path());
    EXPECT_THROW(lexicon.AtEnd(), LexiconError) << "not open";
    lexicon.Open();
    EXPECT_EQ(lexicon.ReadRecord(), "a");
    EXPECT_THROW(lexicon.ReadRecord(), LexiconError) << "past the end";
    lexicon.Open();
    EXPECT_EQ(lexicon.ReadRecord(), "a") << "opened again, it starts at the first record";
    EXPECT_THROW(LexiconFile(list.Path().string() + ".none").Open(), LexiconError);
    EXPECT_THROW(LexiconFile(testing::TempDir()).Open(), LexiconError) << "a folder";
    EXPECT_THROW(LexiconFile("/dev/zero").Open(), LexiconError) << "a device has no end";
}

struct SpellCase {
    const char* rule;
    const char* letters;
    const char* word;
    bool can;
};

TEST(Passes, LettersSpellAWord)
{
    const SpellCase cases[] = {
        {"the letters themselves", "planetgardensimple", "garden", true},
        {"a letter as often as it is there", "eeexyzplanargdnsim", "exeyez", true},
        {"a letter once too often", "planetgardensimple", "eeeeat", false},
        {"another case is another letter", "planetgardensimple", "Garden", false},
        {"five letters", "planetgardensimple", "plane", false},
        {"only the first six count", "planetgardensimple", "gardenxyz", true},
        {"a used letter leaves its mark", "planetgardensimple", "p*****", true},
        {"with no mark yet", "planetgardensimple", "*lanet", false},
    };
    for (const SpellCase& row : cases)
        EXPECT_EQ(CanSpell(row.letters, row.word), row.can) << row.rule;
}

TEST(Passes, CountTakesAsManyAsSixteenBitsCount)
{
    const auto count = [](int records) {
        std::string bytes;
        for (int i = 0; i < records; ++i)
            bytes += "planet\n";
        const WordListFile list(bytes + "garden");
        LexiconFile lexicon(list.Path());
        std::int16_t words = 0;
        std::string last;
        const FirstLetters drawable = CountWords(lexicon, words, last);
        EXPECT_EQ(last, "garden");
        EXPECT_TRUE(drawable.test('p'));
        EXPECT_FALSE(drawable.test('g')) << "no position reaches the last record";
        return words;
    };
    EXPECT_EQ(count(32766), 32767);
    EXPECT_THROW(count(32767), LexiconError);
}

TEST(Passes, PickStopsShortOfTheLastRecord)
{
    const WordListFile list("a\nb\nc\n");
    LexiconFile lexicon(list.Path());
    const auto pick = [&lexicon](float draw) {
        std::string word = "kept";
        PickRandomWord(lexicon, 3, draw, word);
        return word;
    };
    EXPECT_EQ(pick(0), "kept");
    EXPECT_EQ(pick(DrawOf(2, 3)), "a");
    EXPECT_EQ(pick(justBelowOne), "b");
}

TEST(Passes, CandidatesAreAppendedUntilFull)
{
    const WordListFile list("planet\nsimple\nnothim\nplanetarium\n");
    LexiconFile lexicon(list.Path());
    std::vector<std::string> slots(4);
    std::int16_t count = 0;
    CollectCandidates(lexicon, 4, "planetgardensimple", slots, count);
    CollectCandidates(lexicon, 1, "planetgardensimple", slots, count);
    EXPECT_EQ(slots, (std::vector<std::string>{"planet", "simple", "planetarium", "planet"}));
    EXPECT_THROW(CollectCandidates(lexicon, 1, "planetgardensimple", slots, count), LexiconError);
    EXPECT_THROW(CollectCandidates(lexicon, 5, "nothing here", slots, count), LexiconError)
        << "the file has fewer records than were counted";
}

TEST(Passes, FindReadsNoFurtherThanTheWord)
{
    const WordListFile list("planet\ngarden\nsimple");
    LexiconFile lexicon(list.Path());
    lexicon.Open();
    EXPECT_TRUE(FindWord(lexicon, "garden"));
    EXPECT_EQ(lexicon.ReadRecord(), "simple");
    lexicon.Open();
    EXPECT_TRUE(FindWord(lexicon, "simple")) << "the last record counts";
    lexicon.Open();
    EXPECT_FALSE(FindWord(lexicon, "Planet"));
}

} // namespace
