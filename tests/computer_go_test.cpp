// The computer's go: its exchanges, its search, its claim and its fallback moves.

#include "game/computer_go.h"

#include "game/claim.h"
#include "game/rows.h"
#include "game/scoring.h"
#include "game/word_search.h"
#include "test_game.h"

namespace {

class ComputerGo : public TestGame {
protected:
    ComputerGo()
    {
        board.HiddenWords(1) = "planet";
        board.HiddenWords(2) = "garden";
        board.HiddenWords(3) = "simple";
        board.Level = 1;
        SetBoard(board, "you=garden me=planet swap=simple");
    }

    // A list of candidates: these words, repeated to the count.
    void SetCandidates(const std::vector<std::string>& words, int count)
    {
        for (int k = 1; k <= count; ++k)
            board.Candidates(k) = words[static_cast<std::size_t>(k - 1) % words.size()];
        board.CandidateCount = static_cast<std::int16_t>(count);
    }
};

TEST_F(ComputerGo, LevelSetsTheSpan)
{
    struct Row {
        std::int16_t level;
        int candidates;
        int span;
    };
    const Row rows[] = {{1, 300, 300}, {2, 300, 75}, {3, 300, 50}, {4, 300, 38}, {5, 300, 30},
        {6, 300, 25}, {1, 2000, 2000}, {2, 2000, 500}, {3, 2000, 333}, {4, 2000, 250},
        {5, 2000, 200}, {6, 2000, 167}, {2, 302, 76}, {2, 306, 76}, {3, 303, 50}, {5, 305, 30},
        {6, 306, 26}, {6, 318, 26}, {6, 6, 0}};
    for (const Row& row : rows) {
        board.Level = row.level;
        const auto findsWordAt = [&](int place) {
            SetCandidates({"zzzzzz"}, row.candidates);
            board.Candidates(place) = "planet";
            board.UsedCount = 0;
            board.MyScore.Text = "0";
            platform.Play(18, 0);
            SetRow(board.MyLetters, "tenalp");
            SearchForWord(game);
            platform.draws.clear();
            return board.ComputerScored;
        };
        if (row.span > 0) {
            EXPECT_TRUE(findsWordAt(row.span)) << row.level << " " << row.candidates;
        }
        if (row.span < row.candidates) {
            EXPECT_FALSE(findsWordAt(row.span + 1)) << row.level << " " << row.candidates;
        }
    }
}

TEST_F(ComputerGo, SearchTakesTheFirstUnusedWordOfTheLetters)
{
    struct Row {
        const char* rule;
        const char* letters;
        std::vector<std::string> candidates;
        std::vector<std::string> used;
        std::string word;
    };
    const Row rows[] = {
        {"the earlier of two", "dangre", {"ranged", "garden"}, {}, "ranged"},
        {"the later once the first is used", "dangre", {"ranged", "garden"}, {"ranged"}, "garden"},
        {"no copy of a used word", "dangre", {"garden", "garden"}, {"garden"}, ""},
        {"letters count as often as they stand", "aabcde", {"abcdef", "ecbaba", "edcbaa"}, {},
            "edcbaa"},
        {"cases are letters of their own", "Aabcde", {"aabcde"}, {}, ""},
        {"bytes above 127 come behind letters",
            "\xE9"
            "abcde",
            {"abcde\xE9"}, {}, "abcde\xE9"},
        {"a longer record goes by its first six", "dangre", {"gardeners"}, {}, "gardeners"},
        {"five letters are no word", ".arden", {"garden"}, {}, ""},
    };
    for (const Row& row : rows) {
        board.List1.Clear();
        board.UsedCount = 0;
        for (const std::string& word : row.used)
            ScoreWord(board, board.YourScore, word);
        SetCandidates(row.candidates, static_cast<int>(row.candidates.size()));
        for (int i = 1; i <= 6; ++i) {
            const char letter = row.letters[i - 1];
            board.MyLetters(i).Text = letter == '.' ? "" : std::string(1, letter);
        }
        view.calls.clear();
        platform.Play(row.word.empty() ? 0 : 18, 0);
        SearchForWord(game);
        EXPECT_EQ(board.ComputerScored, !row.word.empty()) << row.rule;
        if (board.ComputerScored) {
            EXPECT_EQ(view.calls.front(), "Word Found: My Word:" + row.word) << row.rule;
        }
    }
}

TEST_F(ComputerGo, TriesEveryExchangeInOrderAndPutsItBack)
{
    struct Row {
        const char* rule;
        const char* word;
        const char* duringMessage;
    };
    const Row rows[] = {
        {"box 1 before box 6", "tslane", "me=slanet swap=pimple"},
        {"swap box 1 before swap box 2", "ilanet", "me=ilanet swap=spmple"},
        {"the last of the 36", "planee", "me=planee swap=simplt"},
        {"a word that stands there already", "planet", "me=planet swap=simple"},
    };
    for (const Row& row : rows) {
        SetBoard(board, "you=garden me=planet swap=SIMPLE");
        SetCandidates({"zzzzzz", row.word}, 2);
        board.UsedCount = 0;
        std::string shown;
        view.during = [&](const std::string& call) {
            EXPECT_EQ(call, std::string("Word Found: My Word:") + row.word) << row.rule;
            EXPECT_FALSE(board.Label5.Visible);
            shown = "me=" + Spell(board.MyLetters) + " swap=" + Spell(board.SwapLetters);
        };
        platform.Play(18, 0);
        Command8_Click(game);
        EXPECT_EQ(shown, row.duringMessage) << row.rule;
        EXPECT_TRUE(platform.draws.empty());
        EXPECT_TRUE(board.Label5.Visible);
        EXPECT_EQ(Line(board).substr(0, 35), "you=garden me=planet swap=simple yo") << "dealt anew";
    }
}

TEST_F(ComputerGo, SwapRowComesBackBoxByBox)
{
    SetBoard(board, "swap=SIMPLE");
    SetCandidates({"pmanet"}, 1); // letter 2 for swap letter 3
    view.during = [this](const std::string&) {
        EXPECT_TRUE(board.SwapLetters(1).Enabled && board.SwapLetters(2).Enabled);
        EXPECT_FALSE(board.SwapLetters(3).Enabled || board.SwapLetters(6).Enabled);
    };
    board.Command16.Enabled = false;
    platform.Play(18, 0);
    Command8_Click(game);
    EXPECT_TRUE(board.SwapLetters(6).Enabled && board.Command16.Enabled);
}

TEST_F(ComputerGo, FallbackMoves)
{
    struct Row {
        std::int16_t fruitless;
        float jumbleDraw;
        bool jumbles;
        std::int16_t after;
    };
    const Row rows[] = {{0, 0.5F, false, 1}, {1, 0.5F, false, 2}, {2, 0.5F, false, 3},
        {3, 0.5F, true, 0}, {3, std::nextafter(0.5F, 0.0F), false, 4}, {4, justBelowOne, false, 1}};
    SetCandidates({"zzzzzz"}, 300);
    for (const bool responses : {false, true}) {
        for (const Row& row : rows) {
            SetBoard(board, "you=garden me=planet swap=SIMPLE");
            board.FruitlessSwaps = row.fruitless;
            board.Check1 = responses ? 1 : 0;
            platform.draws = {row.jumbleDraw};
            // P with P and E with E are drawn first: each time both boxes are drawn anew.
            if (!row.jumbles)
                platform.draws.insert(platform.draws.end(),
                    {0, DrawOf(4, 6), DrawOf(5, 6), justBelowOne, DrawOf(2, 6), DrawOf(3, 6)});
            else
                platform.Play(18, justBelowOne);
            view.calls.clear();
            view.during = [&](const std::string&) {
                EXPECT_FALSE(board.Label5.Visible);
                if (!row.jumbles) {
                    EXPECT_EQ(Spell(board.MyLetters), "pmanet") << "exchanged before it is told";
                    EXPECT_EQ(board.FruitlessSwaps, row.after);
                }
            };
            Command8_Click(game);
            EXPECT_TRUE(platform.draws.empty());
            EXPECT_EQ(board.FruitlessSwaps, row.after);
            EXPECT_EQ(Line(board),
                row.jumbles ? "you=nedrag me=elpmis swap=tenalp you:0 me:0"
                            : "you=garden me=pmanet swap=silple you:0 me:0");
            const std::vector<std::string> told{row.jumbles
                    ? "Quorvel2: Letters Jumbled"
                    : "Computer Swap: I have Swapped a Letter : l for the:-m"};
            EXPECT_EQ(view.calls, responses ? told : std::vector<std::string>{});
            EXPECT_TRUE(board.Label5.Visible);
        }
    }
}

TEST_F(ComputerGo, TwelveEqualLettersEndTheGo)
{
    SetBoard(board, "me=eeeeee swap=EEEEEE");
    SetCandidates({"zzzzzz"}, 300);
    board.Check1 = 1;
    board.FruitlessSwaps = 4;
    platform.draws = {justBelowOne};
    Command8_Click(game);
    EXPECT_TRUE(view.calls.empty() && platform.draws.empty());
    EXPECT_TRUE(board.Label5.Visible && board.SwapLetters(6).Enabled);
    EXPECT_EQ(board.FruitlessSwaps, 0);

    board.Check1 = 0;
    board.SwapLetters(6).Text = "p"; // one other letter is enough for an exchange
    platform.draws = {0, 0, justBelowOne};
    Command8_Click(game);
    EXPECT_EQ(Spell(board.MyLetters) + Spell(board.SwapLetters), "peeeeeeeeeee");
}

TEST_F(ComputerGo, ClaimIsWeighedAgainstThePlayersScore)
{
    struct Row {
        const char* rule;
        const char* mine; // with the word in it
        const char* yours;
        const char* mineAfter;
        const char* ending;
    };
    const Row rows[] = {
        {"1200 claims nothing", "1200", "0", "1200", nullptr},
        {"the player is ahead by a point", "1250", "101", "1250", nullptr},
        {"level with the player", "1250", "100", "100", " But You Still WIN!!"},
        {"ahead of the player", "1300", "150", "200", " I WIN!!"},
        {"just past 1200", "1210", "0", "20", " I WIN!!"},
        {"scores compare as numbers", "2200", "950", "2000", " I WIN!!"},
    };
    for (const Row& row : rows) {
        SetBoard(board, std::string("you=garden me=planet swap=simple you:") + row.yours);
        board.MyScore.Text = std::to_string(std::stoi(row.mine) - 60);
        board.List1.Clear();
        board.UsedCount = 0;
        board.Text9.Text = " 10";
        for (LetterRow* shown :
            {&board.Word1, &board.Word2, &board.Word3, &board.Text6, &board.Text7, &board.Text8})
            Empty(*shown);
        board.Frame1.Visible = false;
        board.Frame9.Visible = true;
        SetCandidates({"simple", "slanet"}, 2);
        view.calls.clear();
        view.answers.clear();
        if (row.ending)
            view.answers = {Answer::Yes};
        view.during = [&](const std::string& call) {
            if (call == "Word Found: My Word:slanet") {
                EXPECT_EQ(board.List1.ListCount(), 0);
            } else if (call != "Quorvel2: Letters Jumbled") {
                EXPECT_EQ(Line(board).substr(0, 37), "you=garden me=slanet swap=pimple you:")
                    << row.rule;
                EXPECT_EQ(board.MyScore.Text, row.mineAfter) << row.rule;
                EXPECT_EQ(board.Text9.Text, " 10") << "the bonus from before the word";
                EXPECT_EQ(board.List1.ListCount(), 1);
                EXPECT_EQ(board.UsedCount, 0);
                EXPECT_EQ(Spell(board.Word1) + Spell(board.Word2) + Spell(board.Word3),
                    call.ends_with("Play Again") ? "planetgardensimple" : "");
                EXPECT_EQ(Spell(board.Text6) + Spell(board.Text7) + Spell(board.Text8),
                    call.ends_with("Play Again") ? "planetgardensimple" : "");
            }
        };
        board.Check1 = 1;
        platform.Play(18, 0);
        Command8_Click(game);
        std::vector<std::string> calls{"Word Found: My Word:slanet"};
        if (row.ending)
            calls.insert(calls.end(),
                {std::string("Quorvel2: I now know all three words") + row.ending,
                    "New Game? Play Again"});
        calls.emplace_back("Quorvel2: Letters Jumbled");
        EXPECT_EQ(view.calls, calls) << row.rule;
        EXPECT_EQ(board.MyScore.Text, row.ending ? "0" : row.mineAfter) << row.rule;
        EXPECT_EQ(board.Frame1.Visible, row.ending != nullptr);
        EXPECT_EQ(board.UsedWords(1), "slanet") << "the rest of the go runs after a claim too";
        EXPECT_EQ(board.Text9.Text, " 10");
        EXPECT_TRUE(board.Label5.Visible && board.ComputerScored);
        EXPECT_TRUE(board.Frame2.Visible && board.Frame3.Visible && board.Frame4.Visible
            && board.Frame5.Visible && board.Frame7.Visible && board.Frame9.Visible)
            << "a claim hides no frame";
    }
}

TEST_F(ComputerGo, ClaimAndNoEndsTheProgramThere)
{
    board.MyScore.Text = "1200";
    SetCandidates({"slanet"}, 1);
    view.answers = {Answer::No};
    EXPECT_TRUE(Ends([this] { Command8_Click(game); }));
    EXPECT_EQ(board.UsedCount, 0);
}

} // namespace
