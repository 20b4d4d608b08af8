// Whole games on the shipped word list, and the counts of work in them that must not move.

#include "headless/board_text.h"
#include "headless/fingerprint.h"
#include "headless/headless_game.h"
#include "tools/self_play/played_game.h"

#include <gtest/gtest.h>

namespace {

// What the players of these games do may change only on purpose, with a rule, the word list or the
// simple player. When it does, the failure shows the new number; "level_table WORD_LIST LEVEL SEED"
// tells a game line by line, so that the change can be seen and its reason go into the commit.
TEST(SelfPlay, GamesGoAsRecorded)
{
    const SimplePlayer player(QUORVEL_WORD_LIST);
    Fingerprint fingerprint;
    int claims = 0;
    for (std::int16_t level = 1; level <= 6; ++level) {
        const PlayedGame played = PlayGame(QUORVEL_WORD_LIST, player, level, 7, 40,
            [&fingerprint](const std::string& line) { fingerprint.Add(line); });
        claims += played.claimed;
    }
    EXPECT_EQ(fingerprint.Value(), 0x590e138ed217c4ca) << std::hex << fingerprint.Value();
    EXPECT_GT(claims, 0) << "games that end are among them";
}

TEST(SelfPlay, DrawsAsOftenAsItMust)
{
    HeadlessGame game(QUORVEL_WORD_LIST, HeadlessPlatform(7));
    game.Play("Option1:1 Command1");
    EXPECT_EQ(game.board.WordCount, 7011) << "records";
    EXPECT_EQ(game.board.CandidateCount, 357) << "words found";
    EXPECT_EQ(game.platform.taken, 3 + 18) << "three words and a deal";
    SetBoard(game.board, "me=bbbbbb swap=vvvvvv");
    game.platform.taken = 0;
    game.Play("computer");
    EXPECT_EQ(game.platform.taken, 3) << "jumble or not, and the two boxes of an exchange";
    EXPECT_EQ(game.board.FruitlessSwaps, 1);
}

} // namespace
