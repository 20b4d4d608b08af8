// The start of a game where the cases in text do not reach: places, the clock, and long word lists.

#include "game/start_of_game.h"

#include "headless/headless_game.h"

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

// Starts a game at Level 1 on so many copies of a word and then these words, by draws of the
// positions; nothing when it is refused.
std::optional<std::vector<std::string>> CandidatesOf(int copies, const std::string& word,
    const std::vector<std::string>& words, const std::vector<int>& positions)
{
    std::string bytes;
    for (int k = 0; k < copies; ++k)
        bytes += word + "\n";
    for (const std::string& last : words)
        bytes += last + "\n";
    HeadlessGame game("");
    game.UseList(bytes);
    for (const int position : positions)
        game.platform.draws.push_back(
            DrawOf(position + 1, copies + static_cast<int>(words.size())));
    game.platform.draws.resize(game.platform.draws.size() + (positions.empty() ? 0 : 18));
    game.Play("Option1:1 Command1");
    EXPECT_EQ(game.FirstFault(), "");
    EXPECT_TRUE(game.platform.draws.empty());
    if (game.Ended())
        return {};
    const auto first = game.board.Candidates.begin();
    return std::vector<std::string>(first, first + game.board.CandidateCount);
}

TEST(StartOfGame, CandidatesAreRepeatedUpToThreeHundred)
{
    struct Row {
        int copies; // beside garden and simple
        std::size_t count;
    };
    for (const Row row :
        {Row{5, 301}, Row{297, 598}, Row{298, 300}, Row{299, 301}, Row{1998, 2000}}) {
        // simple, which comes last; planet; garden
        const auto found
            = CandidatesOf(row.copies, "planet", {"garden", "simple"}, {0, 1, row.copies + 1});
        ASSERT_TRUE(found) << row.copies;
        EXPECT_EQ(found->size(), row.count) << row.copies;
    }
    const auto found = CandidatesOf(5, "planet", {"garden", "simple"}, {0, 1, 6}).value();
    EXPECT_EQ(found.at(6) + found.at(7) + found.at(299), "simpleplanetgarden");
}

TEST(StartOfGame, ListsOfAllLengths)
{
    const std::vector<std::string> three{"garden", "simple", "planet"};
    const std::vector<std::string> two{"garden", "simple"};
    EXPECT_TRUE(CandidatesOf(32764, "zzzzzz", three, {0, 32765, 32766})) << "32767 records";
    EXPECT_FALSE(CandidatesOf(32765, "zzzzzz", three, {})) << "32768 records";
    EXPECT_FALSE(CandidatesOf(1999, "planet", two, {0, 1, 2000})) << "2001 candidates";
    EXPECT_FALSE(CandidatesOf(0, "", {}, {})) << "no record";
}

} // namespace
