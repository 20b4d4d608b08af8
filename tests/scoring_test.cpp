// Numbers as text, the score rule and the ledger.

#include "game/scoring.h"

#include "game/numbers.h"
#include "test_game.h"

namespace {

TEST(Numbers, AreWrittenAndRead)
{
    struct Row {
        double number;
        const char* plain;
        const char* padded;
    };
    for (const Row& row : {Row{0, "0", " 0"}, Row{150, "150", " 150"}, Row{-20, "-20", "-20"},
             Row{1234567, "1234567", " 1234567"},
             Row{1e15, "1000000000000000", " 1000000000000000"}}) {
        EXPECT_EQ(PlainForm(row.number), row.plain);
        EXPECT_EQ(PaddedForm(row.number), row.padded);
        EXPECT_EQ(NumberOf(row.plain), row.number);
        EXPECT_EQ(LeadingNumberOf(row.padded), row.number);
    }
    EXPECT_EQ(LeadingNumberOf("  30 points"), 30);
    EXPECT_EQ(LeadingNumberOf(""), 0);
    EXPECT_EQ(LeadingNumberOf("none"), 0);
    EXPECT_EQ(PlainForm(1e300).size(), 301U);
}

TEST(ScoreWord, PaysFiftyAndTheBonusOnShow)
{
    struct Row {
        const char* rule;
        int before; // words played
        const char* bonus;
        const char* score;
        const char* scoreAfter;
        const char* bonusAfter;
    };
    const Row rows[] = {
        {"the first word earns 50, the bonus keeps its blank", 0, "0", "0", "50", " 10"},
        {"the second earns 60", 1, " 10", "50", "110", " 20"},
        {"the bonus is read from its box", 1, " 70", "0", "120", " 20"},
        {"the first word at carried scores", 0, "0", "1000000", "1000050", " 10"},
        {"the list counts no further than 16 bits", 40000, " 327670", "0", "327720", " 327670"},
    };
    for (const Row& row : rows) {
        const auto board = std::make_unique<Board>();
        for (int i = 0; i < row.before; ++i)
            board->List1.AddItem("planet");
        board->Text9.Text = row.bonus;
        board->YourScore.Text = row.score;
        ScoreWord(*board, board->YourScore, "garden");
        EXPECT_EQ(board->YourScore.Text, row.scoreAfter) << row.rule;
        EXPECT_EQ(board->Text9.Text, row.bonusAfter) << row.rule;
        EXPECT_EQ(board->MyScore.Text, "0") << row.rule;
        EXPECT_EQ(board->List1.Words().back(), "garden") << row.rule;
        EXPECT_EQ(board->UsedWords(1), "garden") << row.rule;
        EXPECT_EQ(board->UsedWords(0), "") << row.rule;
    }
}

TEST(Ledger, KeepsItsTwoHundredAndFiftyWords)
{
    const auto board = std::make_unique<Board>();
    const auto used = [&board](const std::string& word) {
        board->ProbeWord = word;
        CheckWordUsed(*board);
        return board->ProbeUsed;
    };
    EXPECT_TRUE(used("")) << "slot 0";
    EXPECT_FALSE(used("word1"));
    for (int k = 1; k <= 251; ++k)
        ScoreWord(*board, board->MyScore, "word" + std::to_string(k));
    EXPECT_EQ(board->UsedCount, 250);
    EXPECT_EQ(board->UsedWords(1) + board->UsedWords(250), "word1word250");
    EXPECT_EQ(board->List1.ListCount(), 251);
    EXPECT_EQ(board->Text9.Text, " 2510");
    EXPECT_EQ(board->MyScore.Text, PlainForm(251 * 50 + 10 * (250 * 251 / 2)));
    EXPECT_TRUE(used("word250"));
    EXPECT_FALSE(used("word251"));
}

} // namespace
