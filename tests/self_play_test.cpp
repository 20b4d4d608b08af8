// Whole games on the shipped word list.

#include "headless/fingerprint.h"
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
    EXPECT_EQ(fingerprint.Value(), 0x80c8389c3552ca3d) << std::hex << fingerprint.Value();
    EXPECT_GT(claims, 0) << "games that end are among them";
}

} // namespace
