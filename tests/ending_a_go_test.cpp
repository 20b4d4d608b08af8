// "Submit Word", "Pass" and "Jumble": what they tell, what they change, and in which order.

#include "game/ending_a_go.h"

#include "game/clicks.h"
#include "game/lay_out_word.h"
#include "game/moving_letters.h"
#include "game/rows.h"
#include "game/scoring.h"
#include "test_game.h"

namespace {

using Calls = std::vector<std::string>;

class EndingAGo : public TestGame {
protected:
    EndingAGo()
        : TestGame("planet\ngarden\nsimple")
    {
        board.HiddenWords(1) = "planet";
        board.HiddenWords(2) = "garden";
        board.HiddenWords(3) = "simple";
        board.Level = 1;
        for (int k = 1; k <= 300; ++k)
            board.Candidates(k) = "zzzzzz"; // the computer finds nothing
        board.CandidateCount = 300;
        SetBoard(board, "you=garden me=planet swap=simple");
    }

    // The draws of a fruitless go: no jumble, then letter 1 (p) for swap letter 1 (s).
    void PlayFruitlessGo() { platform.draws.insert(platform.draws.end(), {0, 0, 0}); }
};

TEST_F(EndingAGo, OutcomesOfSubmitWord)
{
    struct Row {
        const char* rule;
        const char* start;
        std::vector<std::string> used;
        Calls calls;
        const char* after;
    };
    const Row rows[] = {
        {"a gap is refused first", "you=gar.en", {"garden"},
            {"Quorvel2: You can't submit an incomplete word"},
            "you=gar.en me=planet swap=simple you:0 me:0"},
        {"a used word is refused", "you=garden swap=SIMPLE", {"planet", "garden"},
            {"Quorvel2: Word Has Been Used"}, "you=garden me=planet swap=SIMPLE you:0 me:0"},
        {"an unknown word costs the go", "you=nedrag swap=SIMPLE", {},
            {"refresh", "Quorvel2: Word Not In DataBase"},
            "you=nedrag me=slanet swap=pimple you:0 me:0"},
        {"another case is another word", "", {}, {"refresh", "Quorvel2: Word Not In DataBase"},
            "you=Garden me=slanet swap=pimple you:0 me:0"},
        {"a word earns 50", "you=garden swap=SIMPLE", {}, {"refresh", "Quorvel2: Word Accepted"},
            "you=garden me=slanet swap=pimple you:50 me:0"},
        {"the last record counts", "you=simple swap=garden", {"planet"},
            {"refresh", "Quorvel2: Word Accepted"}, "you=garden me=slanet swap=pimple you:60 me:0"},
    };
    for (const Row& row : rows) {
        SetBoard(board, "you=garden me=planet swap=simple you:0 me:0");
        SetBoard(board, row.start);
        if (row.rule == std::string("another case is another word"))
            board.Text1(1).Text = "G";
        board.List1.Clear();
        board.UsedCount = 0;
        for (std::string& word : board.UsedWords)
            word.clear();
        board.Text9.Text = "0";
        for (const std::string& word : row.used) {
            board.List1.AddItem(word);
            AddUsedWord(board, word);
            RaiseBonus(board);
        }
        board.Command4.Enabled = board.Text1(2).Enabled = false;
        const bool ends = row.calls.front() == "refresh";
        const bool scores = row.calls.back() == "Quorvel2: Word Accepted";
        view.calls.clear();
        view.during = [&](const std::string&) {
            EXPECT_EQ(board.Label5.Visible, !ends) << row.rule;
            EXPECT_EQ(board.UsedCount, static_cast<int>(row.used.size())) << "not yet scored";
        };
        platform.Play(scores ? 18 : 0, 0);
        if (ends)
            PlayFruitlessGo();
        Command3_Click(game);
        EXPECT_EQ(view.calls, row.calls) << row.rule;
        EXPECT_EQ(Line(board), row.after) << row.rule;
        EXPECT_EQ(board.UsedCount, static_cast<int>(row.used.size()) + (scores ? 1 : 0))
            << row.rule;
        EXPECT_TRUE(platform.draws.empty()) << row.rule;
        EXPECT_TRUE(board.Label5.Visible) << row.rule;
        EXPECT_FALSE(board.Command4.Enabled || board.Text1(2).Enabled) << row.rule;
    }
}

TEST_F(EndingAGo, AWordBehindTheFirstFiftyScoresAgain)
{
    for (int k = 1; k <= 49; ++k)
        AddUsedWord(board, "word" + std::to_string(k));
    AddUsedWord(board, "garden"); // slot 50
    Command3_Click(game);
    EXPECT_EQ(view.calls, Calls{"Quorvel2: Word Has Been Used"});
    board.UsedWords(50) = "word50";
    AddUsedWord(board, "garden"); // slot 51
    platform.Play(18, 0);
    PlayFruitlessGo();
    Command3_Click(game);
    EXPECT_EQ(view.calls.back(), "Quorvel2: Word Accepted");
    EXPECT_EQ(board.UsedWords(52), "garden");
}

TEST_F(EndingAGo, AListThatIsGoneCostsNothing)
{
    std::filesystem::remove(list.Path());
    board.Command16.Enabled = false;
    view.during = [this](const std::string&) { EXPECT_FALSE(board.Label5.Visible); };
    Command3_Click(game);
    EXPECT_EQ(view.calls,
        (Calls{
            "refresh", "Quorvel2: The file Lexicon.txt must be in the C:\\ Directory (Folder)"}));
    EXPECT_EQ(Line(board), "you=garden me=planet swap=simple you:0 me:0");
    EXPECT_TRUE(board.Label5.Visible);
    EXPECT_FALSE(board.Command16.Enabled);
}

TEST_F(EndingAGo, PassAndJumble)
{
    struct Row {
        const char* rule;
        void (*handler)(Game&);
        int deals;
        const char* after;
    };
    const Row rows[] = {
        {"Pass leaves the letters", Command13_Click, 0,
            "you=na.... me=slanet swap=pimple up=gard.. you:0 me:0"},
        {"Jumble deals first", Command14_Click, 1, "you=garden me=slanet swap=pimple you:0 me:0"},
    };
    for (const Row& row : rows) {
        SetBoard(board, "you=NA.... me=planet swap=SIMPLE up=gard..");
        board.LayOutNext = 3;
        for (Button* button : ArrangingButtons(board))
            button->Enabled = false;
        board.FruitlessSwaps = 2;
        view.calls.clear();
        view.during = [&](const std::string&) {
            EXPECT_FALSE(board.Label5.Visible);
            EXPECT_EQ(Spell(board.Text2), "gard") << "the repaint comes before the deal";
        };
        platform.Play(18 * row.deals, 0);
        PlayFruitlessGo();
        row.handler(game);
        EXPECT_EQ(Line(board), row.after) << row.rule;
        EXPECT_EQ(view.calls, Calls{"refresh"});
        EXPECT_EQ(board.FruitlessSwaps, row.deals == 0 ? 3 : 1);
        for (const Button* button : ArrangingButtons(board))
            EXPECT_TRUE(button->Enabled) << row.rule;
        EXPECT_TRUE(platform.draws.empty());
    }
}

TEST_F(EndingAGo, ADealIsToldWhenTheWordHasScoredAndBeforeTheGoEnds)
{
    board.Check1 = 1;
    board.FruitlessSwaps = 2;
    board.Candidates(1) = "slanet"; // the computer's first trial
    std::vector<std::string> seen;
    view.during = [&](const std::string& call) {
        if (call == "Quorvel2: Letters Jumbled") {
            seen.push_back(Line(board) + " bonus:" + board.Text9.Text
                + " used:" + std::to_string(board.UsedCount)
                + " fruitless:" + std::to_string(board.FruitlessSwaps));
            EXPECT_FALSE(board.Command4.Enabled || board.Label5.Visible);
        }
    };
    board.Command4.Enabled = false;
    platform.Play(18 + 18, 0);
    Command3_Click(game);
    EXPECT_EQ(seen,
        (Calls{"you=garden me=planet swap=simple you:50 me:0 bonus: 10 used:1 fruitless:2",
            "you=garden me=planet swap=simple you:50 me:60 bonus: 20 used:2 fruitless:0"}));

    seen.clear();
    board.Candidates(1) = "planee"; // the last trial
    SetBoard(board, "swap=SIMPLE");
    board.Command4.Enabled = false;
    platform.Play(18, 0);
    Command13_Click(game);
    EXPECT_EQ(
        seen, Calls{"you=garden me=planet swap=simple you:50 me:130 bonus: 30 used:3 fruitless:0"});
}

TEST_F(EndingAGo, ALayingOutAfterJumbleStartsFromTheFirstBox)
{
    Command9_Click(game);
    Text2_Click(game, 6);
    platform.Play(18, 0);
    PlayFruitlessGo();
    Command14_Click(game);
    Command9_Click(game);
    Text2_Click(game, 2);
    EXPECT_EQ(board.Text1(1).Text, "a");
}

TEST_F(EndingAGo, ALayingOutGoesOnAfterPass)
{
    Command9_Click(game);
    Text2_Click(game, 6);
    PlayFruitlessGo();
    Command13_Click(game);
    Text1_Click(game, 1);
    Text1_Click(game, 2);
    EXPECT_EQ(board.HeldIndex, 0) << "letters wait above";
    for (const int box : {5, 4, 3, 2, 1})
        Text2_Click(game, static_cast<std::int16_t>(box));
    EXPECT_EQ(Spell(board.Text1), "nedrag");
    Text1_Click(game, 1);
    EXPECT_EQ(board.HeldLetter, "n");
}

TEST_F(EndingAGo, AHeldLetterMeetsTheEndOfAGo)
{
    struct Row {
        const char* rule;
        void (*handler)(Game&);
        int deals;
        const char* after;
    };
    const Row rows[] = {
        {"Pass keeps it", Command13_Click, 0,
            "you=gar.en me=slanet swap=pimple held=d4 you:0 me:0"},
        {"Jumble deals it", Command14_Click, 1, "you=garden me=slanet swap=pimple you:0 me:0"},
    };
    for (const Row& row : rows) {
        SetBoard(board, "you=garden me=planet swap=simple");
        Text1_Click(game, 4);
        platform.Play(18 * row.deals, 0);
        PlayFruitlessGo();
        row.handler(game);
        EXPECT_EQ(Line(board), row.after) << row.rule;
        EXPECT_TRUE(BoardIsOk(board)) << row.rule;
        Text1_Click(game, 4);
    }
}

TEST_F(EndingAGo, AClickInsideTheRepaintRunsToItsEndFirst)
{
    struct Row {
        const char* rule;
        const char* outer;
        const char* nested;
        Calls calls;
    };
    const Row rows[] = {
        {"Jumble inside Submit, which goes by its word", "Command3", "Command14",
            {"refresh", "refresh", "Quorvel2: Word Accepted"}},
        {"Submit inside Submit scores twice", "Command3", "Command3",
            {"refresh", "refresh", "Quorvel2: Word Accepted", "Quorvel2: Word Accepted"}},
        {"a lay out inside Pass", "Command13", "Command9", {"refresh"}},
        {"Pass inside an exchange", "SwapLetters", "Command13", {"refresh", "refresh"}},
    };
    for (const Row& row : rows) {
        SetBoard(board, "you=garden me=planet swap=simple up=......");
        board.Text9.Text = "0";
        board.List1.Clear();
        board.UsedCount = 0;
        for (std::string& word : board.UsedWords)
            word.clear();
        view.calls.clear();
        int depth = 0;
        view.during = [&](const std::string& call) {
            if (call == "refresh" && ++depth == 1) {
                EXPECT_TRUE(Deliver(game, *FindClick(row.nested), 0)) << row.rule;
            }
        };
        if (row.outer == std::string("SwapLetters"))
            Text1_Click(game, 1);
        // A jumble turns the letters round; all other draws are 0.
        platform.Play(row.nested == std::string("Command14") ? 18 : 0, justBelowOne);
        platform.Play(200, 0);
        Deliver(game, *FindClick(row.outer), 1);
        platform.draws.clear();
        EXPECT_EQ(view.calls, row.calls) << row.rule;
        EXPECT_TRUE(board.Label5.Visible);
        EXPECT_TRUE(BoardIsOk(board)) << row.rule;
    }
}

} // namespace
