// Buying letters, guessing the words, giving in, and what each end of a game hands to the next.

#include "game/clicks.h"
#include "game/rows.h"
#include "game/start_of_game.h"
#include "test_game.h"

namespace {

using Calls = std::vector<std::string>;

class EndingAGame : public TestGame {
protected:
    EndingAGame()
    {
        Form_Load(game);
        Option1_Click(game, 1);
        Start();
    }

    // Starts a game with the hidden words simple, planet and garden, dealt in this order.
    void PlayStart()
    {
        platform.draws.insert(platform.draws.end(), {0, DrawOf(2, 3), DrawOf(3, 3)});
        platform.Play(18, 0);
    }
    void Start()
    {
        PlayStart();
        Click("Command1");
    }

    bool Click(std::string_view control, int index = 0)
    {
        return Deliver(game, *FindClick(control), static_cast<std::int16_t>(index));
    }

    void Guess(const std::string& first, const std::string& second, const std::string& third)
    {
        for (int i = 1; i <= 6; ++i) {
            board.Text6(i).Text = first[static_cast<std::size_t>(i) - 1];
            board.Text7(i).Text = second[static_cast<std::size_t>(i) - 1];
            board.Text8(i).Text = third[static_cast<std::size_t>(i) - 1];
        }
    }
};

TEST_F(EndingAGame, BuyingALetter)
{
    struct Row {
        const char* rule;
        const char* score;
        const char* row;
        int box;
        const char* scoreAfter;
        const char* bought;
        bool refused;
    };
    const Row rows[] = {
        {"100 is enough", "100", "Word1", 2, "0", "i", false},
        {"90 is not", "90", "Word2", 2, "90", "", true},
        {"a shown letter is not for sale", "500", "Word3", 4, "500", "d", false},
        {"nor is it refused at 0", "0", "Word3", 4, "0", "d", false},
        {"letters of the second word", "250", "Word2", 6, "150", "t", false},
        {"and of the third", "1000000", "Word3", 5, "999900", "e", false},
    };
    for (const Row& row : rows) {
        board.YourScore.Text = row.score;
        view.calls.clear();
        LetterRow& guess = row.row == std::string("Word1") ? board.Text6
            : row.row == std::string("Word2")              ? board.Text7
                                                           : board.Text8;
        LetterRow& shown = row.row == std::string("Word1") ? board.Word1
            : row.row == std::string("Word2")              ? board.Word2
                                                           : board.Word3;
        guess(row.box).Text = "typed";
        Click(row.row, row.box);
        EXPECT_EQ(board.YourScore.Text, row.scoreAfter) << row.rule;
        EXPECT_EQ(shown(row.box).Text, row.bought) << row.rule;
        EXPECT_EQ(
            guess(row.box).Text, row.score != std::string(row.scoreAfter) ? row.bought : "typed")
            << row.rule;
        EXPECT_EQ(view.calls, row.refused ? Calls{"Quorvel2: You can't buy letters"} : Calls{});
        EXPECT_TRUE(board.Label5.Visible);
    }
}

TEST_F(EndingAGame, GuessesThatAreNotRight)
{
    struct Row {
        const char* rule;
        std::function<void(Board&)> typed;
        bool filled;
    };
    const Row rows[] = {
        {"one empty box",
            [](Board& b) {
                b.Text8(6).Text = "";
                b.Text6(1).Text = "x";
            },
            false},
        {"one empty box, the rest right", [](Board& b) { b.Text7(3).Text = ""; }, false},
        {"the third word alone is wrong", [](Board& b) { b.Text8(3).Text = "l"; }, true},
        {"a blank fills a box", [](Board& b) { b.Text6(2).Text = " "; }, true},
        {"two letters in one box", [](Board& b) { b.Text7(2).Text = "ll"; }, true},
        {"a capital", [](Board& b) { b.Text6(1).Text = "S"; }, true},
        {"the words in each other's rows", [](Board& b) { std::swap(b.Text6, b.Text7); }, true},
    };
    for (const Row& row : rows) {
        Guess("simple", "planet", "garden");
        row.typed(board);
        board.YourScore.Text = "70";
        const std::string guess = Spell(board.Text6) + Spell(board.Text7) + Spell(board.Text8);
        view.calls.clear();
        Click("Command7");
        EXPECT_EQ(view.calls,
            Calls{row.filled ? "Quorvel2: Sorry, but one or more of your words is wrong"
                             : "Quorvel2: Please fill all the letter Boxes Below!"})
            << row.rule;
        EXPECT_EQ(Spell(board.Text6) + Spell(board.Text7) + Spell(board.Text8), guess);
        EXPECT_EQ(board.YourScore.Text, "70");
    }
}

TEST_F(EndingAGame, ARightGuessNamesTheWinner)
{
    struct Row {
        const char* yours;
        const char* mine;
        const char* doubled;
        const char* result;
    };
    const Row rows[] = {
        {"300", "500", "600", "You win with a Score Of: 600"},
        {"200", "1000", "400", "I win with a Score Of: 1000"},
        {"250", "500", "500", "It's a draw:  500 points each"},
        {"1000", "950", "2000", "You win with a Score Of: 2000"},
        {"0", "0", "0", "It's a draw:  0 points each"},
    };
    for (const Row& row : rows) {
        Guess("simple", "planet", "garden");
        SetBoard(board, std::string("you:") + row.yours + " me:" + row.mine);
        view.calls.clear();
        view.answers = {Answer::No};
        view.during = [&](const std::string& call) {
            EXPECT_EQ(board.YourScore.Text, call.ends_with("Well Done") ? row.yours : row.doubled);
            EXPECT_TRUE(board.Frame2.Visible && board.Frame3.Visible && board.Frame9.Visible);
        };
        EXPECT_TRUE(Ends([this] { Click("Command7"); }));
        EXPECT_EQ(view.calls,
            (Calls{"Quorvel2: CORRECT!! Well Done", std::string("Quorvel2: ") + row.result,
                "New Game? Play Again", "end"}));
    }
}

TEST_F(EndingAGame, ARightGuessLeavesThePanelAlone)
{
    board.YourScore.Text = "300";
    Click("Text1", 3);
    Guess("simple", "planet", "garden");
    view.answers = {Answer::Yes};
    EXPECT_TRUE(Click("Command7"));
    EXPECT_EQ(Line(board), "you=pl.net me=simple swap=garden held=a3 you:0 me:0");
    EXPECT_TRUE(board.Frame1.Visible && board.Command2.Visible);
    EXPECT_FALSE(board.Frame2.Visible || board.Frame3.Visible || board.Frame4.Visible
        || board.Frame5.Visible || board.Frame7.Visible || board.Frame9.Visible);
    EXPECT_EQ(Spell(board.Text6) + Spell(board.Text7) + Spell(board.Text8), "");
    for (const char* control : {"Text1", "SwapLetters", "Command3", "Command7", "Word1"})
        EXPECT_FALSE(Click(control, 1)) << control << " is out of view";
    view.calls.clear();
    Start(); // at the same level; the tick of the first start makes the deal speak
    EXPECT_EQ(view.calls, (Calls{"refresh", "Quorvel2: Letters Jumbled"}));
    EXPECT_TRUE(BoardIsOk(board));
}

TEST_F(EndingAGame, GiveIn)
{
    const Calls question{"Do I win?? Do You Resign? and Make Me The Winner!!"};
    Calls whole = question;
    whole.insert(whole.end(),
        {"Quorvel2: The Words Were: simple : planet : garden", "New Game? Play Again?"});

    EXPECT_FALSE(Click("Command1") || Click("Option1", 2)) << "the level panel is away";
    Click("Text1", 3);
    SetBoard(board, "you:200 me:150");
    board.List1.AddItem("planet");
    const std::string before = Line(board);
    view.calls.clear();
    view.answers = {Answer::No};
    Click("Command10");
    EXPECT_EQ(view.calls, question);
    EXPECT_EQ(Line(board), before);

    view.calls.clear();
    view.answers = {Answer::Yes, Answer::No};
    EXPECT_TRUE(Ends([this] { Click("Command10"); }));
    whole.emplace_back("end");
    EXPECT_EQ(view.calls, whole);

    view.calls.clear();
    view.answers = {Answer::Yes, Answer::Yes};
    PlayStart();
    EXPECT_TRUE(Click("Command10"));
    EXPECT_EQ(Line(board), "you=planet me=simple swap=garden you:200 me:150");
    EXPECT_EQ(board.List1.ListCount(), 0);
    EXPECT_FALSE(board.Frame1.Visible);
    EXPECT_TRUE(BoardIsOk(board));
}

TEST_F(EndingAGame, DisabledControlsAreHandedOn)
{
    struct Row {
        const char* rule;
        const char* pressed;
        bool arrangingEnabled; // beside "+", which both disable
    };
    for (const Row& row : {Row{"+", "Command16", true}, Row{"a laying out", "Command9", false}}) {
        board.Check1 = 0;
        Click(row.pressed);
        board.YourScore.Text = "100";
        board.Word1(2).Text = "";
        EXPECT_TRUE(Click("Word1", 2)) << "letters are for sale all the time";
        view.answers = {Answer::Yes, Answer::Yes};
        PlayStart();
        Click("Command10");
        EXPECT_FALSE(board.Command16.Enabled) << row.rule;
        EXPECT_TRUE(board.SwapLetters(1).Enabled) << row.rule;
        EXPECT_EQ(board.Command9.Enabled, row.arrangingEnabled) << row.rule;
        EXPECT_EQ(board.Text1(6).Enabled, row.arrangingEnabled) << row.rule;
        platform.Play(row.arrangingEnabled ? 6 : 0, 0);
        EXPECT_EQ(Click("Command6"), row.arrangingEnabled) << row.rule;
        platform.draws = {0, 0, 0}; // no jumble, then s for g
        board.Candidates(1) = "zzzzzz";
        board.CandidateCount = 1;
        board.Check1 = 0;
        Click("Command13");
        board.CandidateCount = 300;
        EXPECT_TRUE(board.Command16.Enabled && board.Command9.Enabled && board.Text1(6).Enabled)
            << row.rule;
    }
}

} // namespace
