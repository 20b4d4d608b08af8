// The start of a game where the cases in text do not reach: places, seeds, and long word lists.

#include "game/start_of_game.h"

#include "test_game.h"

namespace {

class StartOfGame : public TestGame {
protected:
    // Starts a game on so many copies of a word and then these words, by draws of the positions;
    // returns what the window was asked for.
    std::vector<std::string> Start(int copies, const std::string& word,
        const std::vector<std::string>& words, const std::vector<int>& positions)
    {
        const int records = copies + static_cast<int>(words.size());
        std::string bytes;
        for (int k = 0; k < copies; ++k)
            bytes += word + "\n";
        list.Write(bytes + Lines(words));
        for (const int position : positions)
            platform.Play(1, DrawOf(position + 1, records));
        platform.Play(positions.empty() ? 0 : 18, 0);
        view.calls.clear();
        board.Level = 1;
        board.Check1 = 0;
        Ends([this] { Command1_Click(game); });
        return view.calls;
    }
};

const std::vector<std::string> started{"refresh"};
const std::vector<std::string> refused{
    "refresh", "Quorvel2: The file Lexicon.txt must be in the C:\\ Directory (Folder)", "end"};

TEST_F(StartOfGame, LevelPanelStandsInTheMiddleOfTheWindow)
{
    board.WindowWidth = 10875;
    board.WindowHeight = 7920;
    Form_Load(game);
    EXPECT_EQ(board.Frame1.Left, 4410);
    EXPECT_EQ(board.Frame1.Top, 2152.5);
    EXPECT_FALSE(board.Frame2.Visible || board.Frame3.Visible || board.Frame4.Visible
        || board.Frame5.Visible || board.Frame7.Visible || board.Frame9.Visible);
    board.WindowWidth = 9960;
    board.WindowHeight = 7484;
    ReturnToLevelPanel(board);
    EXPECT_EQ(board.Frame1.Left, 3952.5);
    EXPECT_EQ(board.Frame1.Top, 1934.5);
    EXPECT_EQ(board.Command2.Left, 3832.5);
    EXPECT_EQ(board.Command2.Top, 1754.5);
}

TEST_F(StartOfGame, TakesItsSeedFromTheClock)
{
    Command1_Click(game);
    Start(1, "planet", {"garden", "simple"}, {0, 1, 2});
    EXPECT_EQ(platform.seeds, (std::vector<float>{43200.5F, 43200.5F})) << "with no level too";
}

TEST_F(StartOfGame, CandidatesAreRepeatedUpToThreeHundred)
{
    struct Row {
        int copies; // beside garden and simple
        int count;
    };
    for (const Row row :
        {Row{5, 301}, Row{297, 598}, Row{298, 300}, Row{299, 301}, Row{1998, 2000}}) {
        // simple, which comes last; planet; garden
        EXPECT_EQ(
            Start(row.copies, "planet", {"garden", "simple"}, {0, 1, row.copies + 1}), started);
        EXPECT_EQ(board.CandidateCount, row.count) << row.copies;
    }
    Start(5, "planet", {"garden", "simple"}, {0, 1, 6});
    EXPECT_EQ(
        board.Candidates(7) + board.Candidates(8) + board.Candidates(300), "simpleplanetgarden");
}

TEST_F(StartOfGame, ListsOfAllLengths)
{
    const std::vector<std::string> three{"garden", "simple", "planet"};
    const std::vector<std::string> two{"garden", "simple"};
    EXPECT_EQ(Start(32764, "zzzzzz", three, {0, 32765, 32766}), started) << "32767 records";
    EXPECT_EQ(Start(32765, "zzzzzz", three, {}), refused) << "32768 records";
    EXPECT_EQ(Start(1999, "planet", two, {0, 1, 2000}), refused) << "2001 candidates";
    EXPECT_EQ(Start(0, "", {}, {}), refused) << "no record";
    platform.Play(
        3 * 30519, DrawOf(2, 32767)); // every draw falls on the first of three first letters
    EXPECT_EQ(Start(32764, "zzzzzz", three, {}), refused) << "draws end, if no draw succeeds";
}

TEST_F(StartOfGame, AListThatChangesMeanwhileIsRefused)
{
    view.during = [this](const std::string& call) {
        if (call == "Quorvel2: Letters Jumbled")
            list.Write("zzzzzz\nzzzzzz\nzzzzzz\n"); // the letters can make none of these
    };
    list.Write("planet\ngarden\nsimple\n");
    platform.draws = {0, DrawOf(2, 3), DrawOf(3, 3)};
    platform.Play(18, 0);
    board.Level = board.Check1 = 1;
    EXPECT_TRUE(Ends([this] { Command1_Click(game); }));
}

} // namespace
