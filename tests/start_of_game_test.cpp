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
    EXPECT_FALSE(board.Frame2.Visible || board.Frame3.Visible || board.Frame4.Visible
        || board.Frame5.Visible || board.Frame7.Visible || board.Frame9.Visible);
    board.WindowWidth = 9960;
    board.WindowHeight = 7484;
    OfferAnotherGame(game.game);
    EXPECT_EQ(board.Frame1.Left, 3952.5);
    EXPECT_EQ(board.Frame1.Top, 1934.5);
    EXPECT_EQ(board.Command2.Left, 3832.5);
    EXPECT_EQ(board.Command2.Top, 1754.5);
}

TEST(StartOfGame, TakesItsSeedFromTheClock)
{
    HeadlessPlatform steady(6);
    steady.SeedRandom(6);
    HeadlessGame game("", HeadlessPlatform(6));
    game.Play("Command1"); // with no level too
    EXPECT_EQ(game.platform.DrawRandom(), steady.DrawRandom());
}

// How many candidates a game has that starts on this word list, by these draws; 0 when it is
// refused. Positions of 299 words are drawn as 1/299 to 299/299, and the first keeps the last word.
int CandidatesOf(const std::string& list, const std::string& draws)
{
    HeadlessGame game("");
    RunScript(game, "list " + list + "\ndraws " + draws + "\ndo Option1:1 Command1\n");
    EXPECT_EQ(game.FirstFault(), "") << list;
    EXPECT_TRUE(game.platform.draws.empty()) << list;
    return game.Ended() ? 0 : game.board.CandidateCount;
}

TEST(StartOfGame, ListsOfAllLengths)
{
    struct Row {
        const char* list;
        const char* draws;
        int candidates;
    };
    for (const Row& row : {
             // Candidates are repeated up to three hundred.
             Row{"5*planet garden simple", "1/7 2/7 7/7 18*0", 301},
             Row{"297*planet garden simple", "1/299 2/299 299/299 18*0", 598},
             Row{"298*planet garden simple", "1/300 2/300 300/300 18*0", 300},
             Row{"299*planet garden simple", "1/301 2/301 301/301 18*0", 301},
             Row{"1998*planet garden simple", "1/2000 2/2000 2000/2000 18*0", 2000},
             Row{"1999*planet garden simple", "1/2001 2/2001 2001/2001 18*0", 0},
             Row{"32764*zzzzzz garden simple planet", "1/32767 32766/32767 32767/32767 18*0", 300},
         })
        EXPECT_EQ(CandidatesOf(row.list, row.draws), row.candidates) << row.list;
    HeadlessGame game("");
    RunScript(game, "list 32765*zzzzzz garden simple planet\ndo Option1:1 Command1");
    EXPECT_TRUE(game.Ended()) << "32768 records";
    game.UseList("");
    game.Play("Option1:1 Command1");
    EXPECT_TRUE(game.Ended()) << "no record";
}

TEST(StartOfGame, CandidatesAreRepeatedInOrder)
{
    HeadlessGame game("");
    RunScript(game, "list 5*planet garden simple\ndraws 1/7 2/7 7/7 18*0\ndo Option1:1 Command1\n");
    const Board& board = game.board;
    EXPECT_EQ(
        board.Candidates(7) + board.Candidates(8) + board.Candidates(300), "simpleplanetgarden");
}

} // namespace
