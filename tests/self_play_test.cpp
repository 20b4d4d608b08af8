// Whole games on the shipped word list, and the counts of work in them that must not move.

#include "game/computer_go.h"
#include "game/start_of_game.h"
#include "test_game.h"
#include "tools/self_play/played_game.h"
#include "tools/self_play/seeded_platform.h"
#include "tools/self_play/simple_player.h"

#include <cstdlib>
#include <new>

namespace {

int allocations = 0;

} // namespace

// Every allocation of this program is counted.
void* operator new(std::size_t size)
{
    ++allocations;
    if (void* place = std::malloc(size))
        return place;
    throw std::bad_alloc();
}

void operator delete(void* place) noexcept
{
    std::free(place);
}

void operator delete(void* place, std::size_t /*size*/) noexcept
{
    std::free(place);
}

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
    EXPECT_EQ(fingerprint.Text(), "aeb08e5c059c7401");
    EXPECT_GT(claims, 0) << "games that end are among them";
}

class CountingPlatform : public SeededPlatform {
public:
    using SeededPlatform::SeededPlatform;
    int draws = 0;

    float DrawRandom() override
    {
        ++draws;
        return SeededPlatform::DrawRandom();
    }
};

class Work : public TestGame {
protected:
    CountingPlatform chance{7};
    Game shipped{board, view, chance, QUORVEL_WORD_LIST};
};

TEST_F(Work, StartOfAGameReadsAndDrawsAsMuchAsItMust)
{
    board.Level = 1;
    Command1_Click(shipped);
    EXPECT_EQ(board.WordCount, 6639) << "records";
    EXPECT_EQ(board.CandidateCount, 356) << "words found";
    EXPECT_EQ(chance.draws, 3 + 18) << "three words and a deal";
}

TEST_F(Work, FruitlessGoAllocatesNothing)
{
    board.Level = 1;
    Command1_Click(shipped);
    board.Check1 = 0; // the report of an exchange is a text too long to go without
    SetBoard(board, "me=bbbbbb swap=vvvvvv");
    chance.draws = allocations = 0;
    Command8_Click(shipped);
    EXPECT_EQ(allocations, 0);
    EXPECT_EQ(chance.draws, 3) << "jumble or not, and the two boxes of an exchange";
    EXPECT_EQ(board.FruitlessSwaps, 1);
}

} // namespace
