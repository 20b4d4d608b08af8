// Numbers as text, and the ledger and the list of used words at their limits.

#include "game/scoring.h"

#include "game/board.h"
#include "game/numbers.h"

#include <gtest/gtest.h>

#include <memory>

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
    EXPECT_EQ(PlainForm(NumberOf("9007199254740992")), "9007199254740992");
}

TEST(Ledger, KeepsTwoHundredAndFiftyWordsAndTheListGoesOn)
{
    const auto board = std::make_unique<Board>();
    const auto used = [&board](const std::string& word) {
        board->ProbeWord = word;
        CheckWordUsed(*board);
        return board->ProbeUsed;
    };
    EXPECT_TRUE(used("")) << "slot 0";
    for (int k = 1; k <= 40000; ++k)
        ScoreWord(*board, board->MyScore, "word" + std::to_string(k));
    EXPECT_TRUE(used("word1") && used("word250"));
    EXPECT_FALSE(used("word251"));
    EXPECT_EQ(board->List1.Words().size(), 40000U);
    EXPECT_EQ(board->Text9.Text, " 327670") << "the count is of 16 bits and stays at its most";
    const double points = 40000.0 * 50 + 10 * (32767.0 * 32768 / 2 + 32767.0 * (39999 - 32767));
    EXPECT_EQ(board->MyScore.Text, PlainForm(points));
}

} // namespace
