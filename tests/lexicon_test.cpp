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
        {"no line end after the last", "a\nb", {"a", "b"}},
        {"carriage returns and line feeds", "a\r\nb\r\n", {"a", "b"}},
        {"carriage returns alone", "a\rb\r", {"a", "b"}},
        {"commas end a field", "a,b,,c", {"a", "b", "", "c"}},
        {"an empty line is a record", "a\n\nb", {"a", "", "b"}},
        {"blanks in front go, blanks after stay", "  a b  \n b", {"a b  ", "b"}},
        {"quotation marks keep commas and line ends", "\"a,b\nc\"\nd", {"a,b\nc", "d"}},
        {"blanks and one comma after the mark", " \"a\"  ,b", {"a", "b"}},
        {"text after the mark is the next record", "\"a\"b\nc", {"a", "b", "c"}},
        {"an open quotation runs to the end", "a\n\"b,c\nd\n", {"a", "b,c\nd\n"}},
        {"a mark within a field is text", "a\"b\"\n", {"a\"b\""}},
        {"long records", longWord + "\n\"" + longWord + "\"\r\na\r\n", {longWord, longWord, "a"}},
        {"UTF-8 of one to four bytes", "aé\n€😀", {"aé", "€😀"}},
        {"the first and the last letter of each size",
            "\x7F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF",
            {"\x7F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF"}},
        {"Windows-1252 when it is no UTF-8", "b\xFC\x63her\nabcdefg\xFF", {"bücher", "abcdefgÿ"}},
        {"its letters between ASCII and the others",
            "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95\x96\x97"
            "\x98\x99\x9A\x9B\x9C\x9E\x9F",
            {"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ"}},
        {"as a whole, so that UTF-8 beside it goes wrong", "é\n\xFC", {"Ã©", "ü"}},
        {"at any place", "abcdefgh,abcdef\xFC", {"abcdefgh", "abcdefü"}},
        {"a letter of UTF-8 cut short", "\n\xC3", {"", "Ã"}},
        {"by a line end", "\xC3\n", {"Ã"}},
        {"after two bytes of three", "\xE2\x82\n", {"â‚"}},
        {"a letter longer than it need be", "\xC0\xAF", {"À¯"}},
        {"in three bytes", "\xE0\x9F\xBF", {"àŸ¿"}},
        {"a surrogate", "\xED\xA0\x80", {"í\u00A0€"}},
        {"the last surrogate", "\xED\xBF\xBF", {"í¿¿"}},
        {"beyond the last letter", "\xF4\xBF\xBF\xBF", {"ô¿¿¿"}},
        {"five bytes for a letter", "\xF8\x88\x80\x80\x80", {"øˆ€€€"}},
        {"a byte order mark in front of Windows-1252", "\xEF\xBB\xBF\xFC", {"ü"}},
    };
    for (const RecordCase& row : cases)
        EXPECT_EQ(Records(WordListFile(row.bytes).Path()), row.records) << row.rule;
}

TEST(LexiconFile, RefusesWhatItCannotRead)
{
    const WordListFile list("a\n");
    LexiconFile lexicon(list.Path());
    lexicon.Open();
    EXPECT_EQ(lexicon.ReadRecord(), "a");
    EXPECT_THROW(lexicon.ReadRecord(), LexiconError) << "past the end";
    lexicon.Open();
    EXPECT_EQ(lexicon.ReadRecord(), "a") << "opened again, it starts at the first record";
    EXPECT_THROW(LexiconFile(list.Path().string() + ".none").Open(), LexiconError);
    EXPECT_THROW(LexiconFile(testing::TempDir()).Open(), LexiconError) << "a folder";
    EXPECT_THROW(LexiconFile("/dev/zero").Open(), LexiconError) << "a device has no end";
    for (const char undefined : {'\x81', '\x8D', '\x8F', '\x90', '\x9D', '\0'}) {
        list.Write(std::string("a\n") + undefined + "\n");
        EXPECT_THROW(lexicon.Open(), LexiconError) << "byte " << int{undefined};
    }
    list.Write(std::string(4'000'000, 'x'));
    EXPECT_NO_THROW(lexicon.Open());
    list.Write(std::string(4'000'001, 'x'));
    EXPECT_THROW(lexicon.Open(), LexiconError) << "too large";
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
        {"a letter as often as it is there", "eeexyzplanargdnsim", "exeyez", true},
        {"a letter once too often", "planetgardensimple", "eeeape", false},
        {"another case is another letter", "planetgardensimple", "Garden", false},
        {"five letters", "planetgardensimple", "plane", false},
        {"only the first six count", "planetgardensimple", "gardenxyz", true},
        {"a used letter leaves its mark", "planetgardensimple", "p*****", true},
        {"with no mark yet", "planetgardensimple", "*lanet", false},
        {"letters of more bytes", "bücherslovoéèa", "büéèoo", true},
        {"one of them too often", "bücherslovoéèa", "büüéoo", false},
        {"bytes of two letters are not a third", "аїцqйuэ", "аїццйq", false},
        {"letters whose numbers end alike are two", "ààĠbcdef", "àĠĠbcd", false},
        {"and letters of two alphabets", "éөabcd", "ééabcd", false},
        {"one of them is there", "ÿĿabcdef", "abcdÿĿ", true},
        {"and one not, after the last place", "ÿĿabcdef", "abcdÿſ", false},
        {"letters of three bytes", "काडनपटकखกขฃ", "กขฃกขฃ", false},
        {"each as often as it is there", "काडनपटกขฃ", "नกाขपฃ", true},
        {"six letters, not six bytes", "словоб", "сло", false},
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
        const WordCount counted = CountWords(lexicon);
        EXPECT_EQ(counted.last, "garden");
        EXPECT_EQ(counted.firstLetters, U"p") << "no position reaches the last record";
        return counted.records;
    };
    EXPECT_EQ(count(32766), 32767);
    EXPECT_THROW(count(32767), LexiconError);
}

TEST(Passes, PickStopsShortOfTheLastRecord)
{
    const WordListFile list("a\nb\nc\n");
    LexiconFile lexicon(list.Path());
    const auto pick
        = [&lexicon](float draw) { return PickRandomWord(lexicon, 3, draw).value_or("none"); };
    EXPECT_EQ(pick(0), "none");
    EXPECT_EQ(pick(DrawOf(2, 3)), "a");
    EXPECT_EQ(pick(justBelowOne), "b");
    const float belowTwo = 1082401.0F / (1 << 24); // of 31; as a float the product would be 2
    EXPECT_EQ(PickRandomWord(lexicon, 31, belowTwo), "a");
}

TEST(Passes, ChanceThatThreeFirstLettersDiffer)
{
    const WordListFile list("apple\nbread\nchess\n\nclean\nbeard\nagain\ndelta\n");
    LexiconFile lexicon(list.Path());
    EXPECT_DOUBLE_EQ(ChanceOfThreeFirstLetters(lexicon, 8), 6 * 0.25 * 0.25 * 0.25)
        << "no position reaches the last record";
    EXPECT_EQ(ChanceOfThreeFirstLetters(lexicon, 3), 0);
}

TEST(Passes, CandidatesAreAppendedUntilFull)
{
    const WordListFile list("planet\nsimple\nnothim\nplanetarium\n");
    LexiconFile lexicon(list.Path());
    std::vector<std::string> slots(3);
    EXPECT_EQ(CollectCandidates(lexicon, 4, "planetgardensimple", slots), 3);
    EXPECT_EQ(slots, (std::vector<std::string>{"planet", "simple", "planetarium"}));
    slots.pop_back();
    EXPECT_THROW(CollectCandidates(lexicon, 4, "planetgardensimple", slots), LexiconError);
    EXPECT_THROW(CollectCandidates(lexicon, 5, "nothing here", slots), LexiconError)
        << "the file has fewer records than were counted";
}

TEST(Passes, FindReadsNoFurtherThanTheWord)
{
    const WordListFile list("planetary\nplanet\ngarden\nsimple");
    LexiconFile lexicon(list.Path());
    lexicon.Open();
    EXPECT_TRUE(FindWord(lexicon, "planet"));
    EXPECT_EQ(lexicon.ReadRecord(), "garden");
    lexicon.Open();
    EXPECT_TRUE(FindWord(lexicon, "simple")) << "the last record counts";
    lexicon.Open();
    EXPECT_FALSE(FindWord(lexicon, "Planet"));
}

} // namespace
