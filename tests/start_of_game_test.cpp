// From the level panel to a dealt board.

#include "game/clicks.h"
#include "game/rows.h"
#include "game/start_of_game.h"
#include "test_game.h"

namespace {

const std::string fileMessage
    = "Quorvel2: The file Lexicon.txt must be in the C:\\ Directory (Folder)";

// Words that no letters of the hidden words below can make.
std::string Unspellable(int count)
{
    std::string lines;
    for (int i = 0; i < count; ++i)
        lines += "zzzzzz\n";
    return lines;
}

class StartOfGame : public TestGame {
protected:
    // Draws for the three picks out of `words` records, at these positions.
    void PlayPicks(int words, std::initializer_list<int> positions)
    {
        for (const int position : positions)
            platform.draws.push_back(DrawOf(position + 1, words));
    }

    bool AnyGameFrameVisible() const
    {
        return board.Frame2.Visible || board.Frame3.Visible || board.Frame4.Visible
            || board.Frame5.Visible || board.Frame7.Visible || board.Frame9.Visible;
    }

    bool OkEnds()
    {
        return Ends([this] { Command1_Click(game); });
    }
};

TEST_F(StartOfGame, OkWithNoLevelDoesNothingOnView)
{
    Form_Load(game);
    board.Text9.Text = " 20";
    for (int press = 0; press < 2; ++press)
        Command1_Click(game);
    EXPECT_TRUE(view.calls.empty());
    EXPECT_TRUE(board.Frame1.Visible && board.Command2.Visible);
    EXPECT_EQ(board.Caption, "Quorvel");
    EXPECT_EQ(board.Text9.Text, "0");
    EXPECT_EQ(platform.seeds, (std::vector<float>{43200.5F, 43200.5F}));
}

TEST_F(StartOfGame, LevelPanelStandsInTheMiddle)
{
    board.WindowWidth = 10875;
    board.WindowHeight = 7920;
    Form_Load(game);
    EXPECT_EQ(board.Frame1.Left, 4410);
    EXPECT_EQ(board.Frame1.Top, 2152.5);
    board.WindowWidth = 9960;
    board.WindowHeight = 7484;
    SetBoard(board, "you:120 me:50");
    ReturnToLevelPanel(board);
    EXPECT_EQ(board.Frame1.Left, 3952.5);
    EXPECT_EQ(board.Frame1.Top, 1934.5);
    EXPECT_EQ(board.Command2.Left, 3832.5);
    EXPECT_EQ(board.Command2.Top, 1754.5);
    EXPECT_EQ(board.YourScore.Text + board.MyScore.Text, "00");
}

TEST_F(StartOfGame, BoardAfterOk)
{
    list.Write("garden\nsimple\n" + Unspellable(1) + "planet");
    Form_Load(game);
    Option1_Click(game, 3);
    EXPECT_FALSE(AnyGameFrameVisible());
    PlayPicks(4, {0, 1, 2}); // the last record, then the first two
    platform.Play(18, 0);
    view.during = [this](const std::string& call) {
        EXPECT_EQ(call, "refresh");
        EXPECT_FALSE(board.Frame1.Visible || board.Command2.Visible || AnyGameFrameVisible());
        EXPECT_EQ(board.Caption, "Quorvel") << "the title comes after the repaint";
    };
    EXPECT_FALSE(OkEnds());
    EXPECT_EQ(view.calls.size(), 1U) << "the first deal of the process is silent";
    EXPECT_EQ(Line(board), "you=garden me=planet swap=simple you:0 me:0");
    EXPECT_EQ(board.Caption, "Quorvel - Level: 3   No. Of words with these letters:  300");
    EXPECT_EQ(
        board.Candidates(3) + board.Candidates(4) + board.Candidates(300), "planetgardenplanet");
    EXPECT_EQ(Spell(board.Word1) + Spell(board.Text7) + Spell(board.Word3), "pngdsp");
    EXPECT_EQ(board.Word2(4).Text + board.Text6(1).Text + board.Text8(4).Text, "dpp");
    EXPECT_TRUE(board.Frame2.Visible && board.Frame3.Visible && board.Frame4.Visible
        && board.Frame5.Visible && board.Frame7.Visible && board.Frame9.Visible);
    EXPECT_EQ(board.Check1, 1);
    EXPECT_EQ(platform.seeds, std::vector<float>{43200.5F});
    EXPECT_TRUE(BoardIsOk(board));
}

TEST_F(StartOfGame, LeavesWhatBelongsToThePlayer)
{
    list.Write("garden\nsimple\nplanet");
    Form_Load(game);
    Option1_Click(game, 6);
    for (LetterRow* row :
        {&board.Word1, &board.Word2, &board.Word3, &board.Text6, &board.Text7, &board.Text8})
        (*row)(2).Text = "x";
    board.FruitlessSwaps = 2;
    SetBoard(board, "you=ABCDEF swap=GHIJKL up=.x.... you:200 me:150");
    board.List1.AddItem("before");
    board.UsedWords(1) = "before";
    board.UsedCount = 1;
    board.HeldLetter = "a";
    board.HeldIndex = 1;
    board.HeldFlag = true;
    board.LayOutNext = 3;
    board.Command16.Enabled = board.Command4.Enabled = false;
    board.Label5.Visible = false;
    board.Check1 = 1;
    PlayPicks(3, {0, 1, 2});
    platform.Play(18, justBelowOne);
    view.during = [this](const std::string& call) {
        if (call != "refresh") {
            EXPECT_EQ(Line(board), "you=NEDRAG me=elpmis swap=TENALP up=.x.... you:200 me:150");
            EXPECT_EQ(board.FruitlessSwaps, 2);
            EXPECT_EQ(board.Word1(1).Text, "") << "nothing is shown before the deal";
            EXPECT_FALSE(AnyGameFrameVisible());
        }
    };
    EXPECT_FALSE(OkEnds());
    EXPECT_EQ(view.calls.back(), "Quorvel2: Letters Jumbled");
    EXPECT_EQ(Line(board), "you=NEDRAG me=elpmis swap=tenalp you:200 me:150");
    EXPECT_TRUE(BoardIsOk(board)) << "no letter is left in the hand, no word in the ledger";
    EXPECT_EQ(board.UsedWords(1), "");
    EXPECT_EQ(Spell(board.Word1) + Spell(board.Word2) + Spell(board.Word3), "pngdsp");
    EXPECT_EQ(Spell(board.Text6) + Spell(board.Text7) + Spell(board.Text8), "pngdsp");
    EXPECT_EQ(board.FruitlessSwaps, 0);
    EXPECT_EQ(board.LayOutNext, 3);
    EXPECT_FALSE(board.Command16.Enabled || board.Command4.Enabled || board.Label5.Visible);
}

TEST_F(StartOfGame, TriesAreDrawnAnewAsAWhole)
{
    list.Write("garden\ngolden\nsimple\nplanet\nplanet");
    Option1_Click(game, 1);
    PlayPicks(5, {1, 2, 3}); // garden, golden, simple: all three go
    PlayPicks(5, {0, 2, 0}); // simple, which the try before had picked last, golden, golden
    PlayPicks(5, {4, 0, 1}); // planet, planet, garden
    PlayPicks(5, {3, 2, 4});
    platform.Play(18, 0);
    EXPECT_FALSE(OkEnds());
    EXPECT_EQ(
        board.HiddenWords(1) + board.HiddenWords(2) + board.HiddenWords(3), "simplegoldenplanet");
}

struct ListCase {
    const char* rule;
    std::string bytes;
    std::vector<int> positions;
    int records;
    int dealDraws = 0;
};

TEST_F(StartOfGame, ListsThatMakeNoGameEndInTheMessage)
{
    const std::string two = "planet\ngarden\n";
    std::string tooManyCandidates;
    for (int i = 0; i < 1999; ++i)
        tooManyCandidates += "planet\n";
    const ListCase cases[] = {
        {"an empty list", "", {}, 0},
        {"two words", two, {}, 2},
        {"two first letters", two + two + two, {}, 6},
        {"a drawn word of seven letters", two + "simpler\nzzzzzz\n", {1, 3}, 4},
        {"a drawn word of no letters", "\n" + two + "simple\n", {1}, 4},
        {"the third letter came last and is gone", two + "simple", {1, 2, 1}, 3},
        {"2001 candidates", tooManyCandidates + "garden\nsimple", {0, 1, 2000}, 2001, 18},
        {"32768 records", Unspellable(32768), {}, 0},
    };
    for (const ListCase& row : cases) {
        list.Write(row.bytes);
        view.calls.clear();
        platform.draws.clear();
        board.Check1 = 0;
        Option1_Click(game, 2);
        for (const int position : row.positions)
            PlayPicks(row.records, {position});
        platform.Play(row.dealDraws, 0);
        EXPECT_TRUE(OkEnds()) << row.rule;
        EXPECT_EQ(view.calls, (std::vector<std::string>{"refresh", fileMessage, "end"}))
            << row.rule;
        EXPECT_TRUE(platform.draws.empty()) << row.rule;
        EXPECT_FALSE(board.Frame1.Visible);
        EXPECT_EQ(board.Caption, "Quorvel - Level: 2");
    }
    std::filesystem::remove(list.Path());
    EXPECT_TRUE(OkEnds()) << "no list at all";
    EXPECT_EQ(view.calls.back(), "end");
}

TEST_F(StartOfGame, AThirdFirstLetterTooRareToComeEndsInTheMessage)
{
    // Three first letters, but every draw falls on the first of them.
    list.Write(Unspellable(32764) + "planet\ngarden\nsimple\n");
    Option1_Click(game, 1);
    platform.Play(3 * 30519, DrawOf(2, 32767));
    EXPECT_TRUE(OkEnds());
}

TEST_F(StartOfGame, FirstLettersOfTwoCasesDiffer)
{
    list.Write("planet\nPardon\ngarden\nsimple");
    Option1_Click(game, 1);
    PlayPicks(4, {1, 2, 3});
    platform.Play(18, 0);
    EXPECT_FALSE(OkEnds());
    EXPECT_EQ(board.HiddenWords(2), "Pardon");
}

TEST_F(StartOfGame, CandidatesAreRepeatedUpToThreeHundred)
{
    struct Row {
        int copies;
        int count;
    };
    // Beside the copies there are garden and simple.
    for (const Row row :
        {Row{5, 301}, Row{297, 598}, Row{298, 300}, Row{299, 301}, Row{1998, 2000}}) {
        std::string bytes = "garden\nsimple\n";
        for (int i = 0; i < row.copies; ++i)
            bytes += "planet\n";
        list.Write(bytes);
        const int records = row.copies + 2;
        board.Check1 = 0;
        Option1_Click(game, 1);
        PlayPicks(records, {0, 1, 2});
        platform.Play(18, DrawOf(1, 2));
        EXPECT_FALSE(OkEnds());
        EXPECT_EQ(board.CandidateCount, row.count) << row.copies;
    }
    const std::string words = "garden\nsimple\nplanet\n";
    list.Write(Unspellable(32764) + words);
    board.Check1 = 0;
    PlayPicks(32767, {0, 32765, 32766});
    platform.Play(18, 0);
    EXPECT_FALSE(OkEnds()) << "32767 records are a word list";
}

TEST_F(StartOfGame, AGameBegunInsideTheRepaintOfAnotherLeavesOneGame)
{
    list.Write("garden\nsimple\nplanet");
    Option1_Click(game, 1);
    int depth = 0;
    view.during = [&](const std::string& call) {
        if (call == "refresh" && ++depth == 1)
            Command1_Click(game);
    };
    for (int start = 0; start < 2; ++start) {
        PlayPicks(3, {0, 1, 2});
        platform.Play(18, 0);
    }
    EXPECT_FALSE(OkEnds());
    EXPECT_EQ(board.CandidateCount, 300);
    EXPECT_TRUE(BoardIsOk(board));
}

} // namespace
