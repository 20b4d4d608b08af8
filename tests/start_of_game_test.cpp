// The start of a game where the cases in text do not reach: places, the clock, and long word lists.

#include "game/start_of_game.h"

#include "headless/script.h"

#include <gtest/gtest.h>

namespace {

TEST(StartOfGame, LevelPanelStandsInTheMiddleOfTheWindow)
{
    HeadlessGame game("");
    Board& board = game.board;
    board.WindowWidth = 10875;
    board.WindowHeight = 7920;
    Form_Load(game.game);
    EXPECT_EQ(board.Frame1.Left, 4410);
    EXPECT_EQ(board.Frame1.Top, 2152.5);
    board.WindowWidth = 9960;
    board.WindowHeight = 7484;
    OfferAnotherGame(game.game);
    EXPECT_EQ(board.Command2.Left, 3832.5);
    EXPECT_EQ(board.Command2.Top, 1754.5);
}

TEST(StartOfGame, TakesItsSeedFromTheClock)
{
    HeadlessPlatform steady(6);
    steady.SeedRandom(6);
    HeadlessGame game("", HeadlessPlatform(6));
    PlayEvents(game, "Command1"); // with no level too
    EXPECT_EQ(game.platform.DrawRandom(), steady.DrawRandom());
    PlayEvents(game, "Command1");
    steady.SeedRandom(7);
    EXPECT_EQ(game.platform.DrawRandom(), steady.DrawRandom()) << "a clock that goes on";
}

// Starts a game on a word list of planet, garden, so many times planet again, and simple. The first
// draw keeps the last word.
void Start(HeadlessGame& game, int more)
{
    const std::string records = std::to_string(more + 3);
    RunScript(game,
        "list planet garden " + std::to_string(more) + "*planet simple\ndraws 1/" + records + " 2/"
            + records + " 3/" + records + " 18*0\ndo Option1:1 Command1");
    EXPECT_EQ(game.FirstFault(), "");
}

TEST(StartOfGame, CandidatesAreRepeatedUpToThreeHundred)
{
    struct Row {
        int more;
        int candidates; // 0 when the list is refused
    };
    for (const Row& row :
        {Row{4, 301}, Row{296, 598}, Row{297, 300}, Row{298, 301}, Row{1997, 2000}, Row{1998, 0}}) {
        HeadlessGame game("");
        Start(game, row.more);
        EXPECT_EQ(game.Ended() ? 0 : game.board.CandidateCount, row.candidates) << row.more;
    }
    HeadlessGame game("");
    Start(game, 4);
    EXPECT_EQ(game.board.Candidates(7) + game.board.Candidates(8) + game.board.Candidates(9),
        "simpleplanetgarden");
}

} // namespace
