// Whatever the player does, in whatever order: no letter is lost, no rule broken, nothing stops and
// nothing grows.

#include "tools/search/event_player.h"
#include "tools/search/sessions.h"
#include "tools/self_play/seeded_platform.h"

#include <gtest/gtest.h>
#include <malloc.h>

namespace {

TEST(Events, BreakNoRule)
{
    SearchResult result = SearchSessions(SessionLists(QUORVEL_WORD_LIST), 100'000, 1);
    ASSERT_EQ(result.fault, "");
    for (const char* deed :
        {"Quorvel2: Word Accepted", "Quorvel2: Word Has Been Used", "Word Found: My Word",
            "letters bought", "exchanges", "Quorvel2: CORRECT!! Well Done", "words behind the 50th",
            "Quorvel2: I now know all three words I WIN!!", "events inside RefreshWindow"})
        EXPECT_GT(result.counts[deed], 0) << deed;
}

TEST(Events, ThousandGamesTakeNoMoreRoomThanTen)
{
    SeededPlatform platform(1);
    EventPlayer player(QUORVEL_WORD_LIST, platform);
    std::size_t inUse = 0;
    for (int game = 1; game <= 1000; ++game) {
        ASSERT_EQ(
            player.Play("Option1:6 Command1 word:1 word:3 Text1:2 Command14 right Command7"), "");
        if (game == 10)
            inUse = mallinfo2().uordblks;
    }
    EXPECT_EQ(player.counts["Quorvel2: CORRECT!! Well Done"], 1000);
    EXPECT_LE(mallinfo2().uordblks, inUse + 4096);
}

TEST(Events, ScoresAndGuessesOfAnySize)
{
    SeededPlatform platform(1);
    EventPlayer player(QUORVEL_WORD_LIST, platform);
    Board& board = player.board;
    player.Play("Option1:1 Command1 right");
    board.YourScore.Text = "3000000000";
    board.MyScore.Text = "5999999800";
    board.Text6(2).Text = std::string(1 << 20, 'x');
    board.Text7(3).Text = std::string("\0\n\x1B\x7F", 4);
    EXPECT_EQ(player.Play("Command7 Word1:2 Word2:3"), "");
    EXPECT_EQ(player.counts["Quorvel2: Sorry, but one or more of your words is wrong"], 1);
    EXPECT_EQ(board.YourScore.Text, "2999999800");
    player.Play("no Command7");
    EXPECT_EQ(player.counts["Quorvel2: I win with a Score Of"], 1);
}

} // namespace
