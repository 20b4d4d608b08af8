// The player's moves: lifting, exchanging, rotating, mixing and laying out.

#include "game/clicks.h"
#include "game/lay_out_word.h"
#include "game/moving_letters.h"
#include "test_game.h"

#include <sstream>

namespace {

class MovingLetters : public TestGame {
protected:
    MovingLetters() { SetBoard(board, "you=planet me=garden swap=simple"); }

    // Clicks the controls named in a line, as in "Text1:3 SwapLetters:1 Command4", where the player
    // can: a disabled control answers nothing.
    void Click(const std::string& controls)
    {
        std::istringstream words(controls);
        for (std::string word; words >> word;) {
            const std::size_t mark = word.find(':');
            const auto index = mark == std::string::npos ? 0 : std::stoi(word.substr(mark + 1));
            const auto* row = FindClick(word.substr(0, mark));
            ASSERT_NE(row, nullptr) << word;
            Deliver(game, *row, static_cast<std::int16_t>(index));
        }
    }

    std::string Rows() const
    {
        const std::string line = Line(board);
        return line.substr(0, line.find(" you:"));
    }
};

struct MoveCase {
    const char* rule;
    const char* start;
    const char* clicks;
    const char* rows;
};

TEST_F(MovingLetters, RowsAfterTheMoves)
{
    const std::string six = " Command4 Command4 Command4 Command4 Command4 Command4";
    const std::string turns = "Command16" + six + " Command4";
    const MoveCase cases[] = {
        {"a letter is lifted", "", "Text1:3", "you=pl.net me=garden swap=simple held=a3"},
        {"and put back", "", "Text1:3 Text1:3", "you=planet me=garden swap=simple"},
        {"two letters change places", "", "Text1:1 Text1:6", "you=tlanep me=garden swap=simple"},
        {"a letter into a gap leaves a gap", "you=pla.et", "Text1:1 Text1:4",
            "you=.lapet me=garden swap=simple"},
        {"the exchange of a go", "", "Text1:2 SwapLetters:6", "you=peanet me=garden swap=SIMPLL"},
        {"with the red letter", "", "Text1:2 SwapLetters:1", "you=psanet me=garden swap=LIMPLE"},
        {"one exchange a go", "", "Text1:2 SwapLetters:6 Text1:1 SwapLetters:2",
            "you=.eanet me=garden swap=SIMPLL held=p1"},
        {"no exchange with an empty hand", "", "SwapLetters:2 Text1:1 SwapLetters:2",
            "you=ilanet me=garden swap=SPMPLE"},
        {"an empty hold", "you=pla.et", "Text1:4", "you=pla.et me=garden swap=simple held=4"},
        {"an empty hold moves on", "you=pla.et", "Text1:4 Text1:1",
            "you=.la.et me=garden swap=simple held=p1"},
        {"an empty hold takes from the swap row", "you=pla.et", "Text1:4 SwapLetters:1",
            "you=plaset me=garden swap=.IMPLE"},
        {"< turns six", "", "Command4", "you=lanetp me=garden swap=simple"},
        {"> turns six", "", "Command5", "you=tplane me=garden swap=simple"},
        {"+ and < turn seven", "", "Command16 Command4", "you=lanets me=garden swap=PIMPLE"},
        {"+ and > turn seven", "", "Command16 Command5", "you=splane me=garden swap=TIMPLE"},
        {"seven turns of seven come round", "", turns.c_str(), "you=planet me=garden swap=SIMPLE"},
        {"six turns of six come round", "", six.c_str(), "you=planet me=garden swap=simple"},
        {"< and > undo each other", "", "Command16 Command4 Command5",
            "you=planet me=garden swap=SIMPLE"},
        {"no turn with a letter in the hand", "", "Text1:3 Command4 Command5",
            "you=pl.net me=garden swap=simple held=a3"},
        {"+ keeps the letter in the hand, for the row alone", "",
            "Text1:3 Command16 SwapLetters:2 Text1:1", "you=alpnet me=garden swap=SIMPLE"},
        {"+ after an exchange", "", "Text1:1 SwapLetters:1 Command16 Command4",
            "you=lanetp me=garden swap=SIMPLE"},
        {"the swap row turns to the red letter", "", "Command15",
            "you=planet me=garden swap=imples"},
        {"not after an exchange", "", "Text1:1 SwapLetters:1 Command15",
            "you=slanet me=garden swap=PIMPLE"},
        {"laid out", "", "Command9", "you=...... me=garden swap=simple up=planet"},
        {"not with a letter in the hand", "", "Text1:3 Command9",
            "you=pl.net me=garden swap=simple held=a3"},
        {"placed in the order of the clicks", "", "Command9 Text2:6 Text2:6 Text2:1",
            "you=TP.... me=garden swap=simple up=.lane."},
        {"laid out from right to left", "",
            "Command9 Text2:6 Text2:5 Text2:4 Text2:3 Text2:2 Text2:1",
            "you=tenalp me=garden swap=simple"},
        {"nothing else arranges meanwhile", "",
            "Command9 Text2:6 Command4 Command5 Command6 Command16 Text1:1 Command9",
            "you=T..... me=garden swap=simple up=plane."},
        {"the swap row still turns", "", "Command9 Command15",
            "you=...... me=garden swap=imples up=planet"},
        {"+ is given up by a laying out", "",
            "Command16 Command9 Text2:1 Text2:2 Text2:3 Text2:4 Text2:5 Text2:6 Command4",
            "you=lanetp me=garden swap=SIMPLE"},
        {"letters that wait above hold the row", "you=pl.... up=..anet", "Text1:1 Text1:4 Command4",
            "you=pl.... me=garden swap=simple up=..anet"},
    };
    for (const MoveCase& row : cases) {
        *boardInHeap = Board{};
        SetBoard(board, "you=planet me=garden swap=simple");
        SetBoard(board, row.start);
        Click(row.clicks);
        EXPECT_EQ(Rows(), row.rows) << row.rule;
    }
}

TEST_F(MovingLetters, MixDrawsByPlace)
{
    struct Row {
        const char* rule;
        std::vector<float> draws;
        const char* you;
    };
    for (const Row& row : {Row{"draws of 0 keep the order", std::vector<float>(6, 0), "planet"},
             Row{"draws just below 1 turn it round", std::vector<float>(6, justBelowOne),
                 "tenalp"}}) {
        SetBoard(board, "you=planet swap=SIMPLE");
        platform.draws.assign(row.draws.begin(), row.draws.end());
        Command6_Click(game);
        EXPECT_EQ(Rows(), std::string("you=") + row.you + " me=garden swap=SIMPLE") << row.rule;
        EXPECT_TRUE(platform.draws.empty());
    }
    Click("Text1:1 Command6"); // an unexpected draw would fail here
}

TEST_F(MovingLetters, ExchangeIsOnTheBoardWhenTheWindowRepaints)
{
    view.during = [this](const std::string& call) {
        EXPECT_EQ(call, "refresh");
        EXPECT_EQ(Rows(), "you=slanet me=garden swap=PIMPLE");
    };
    Click("Text1:1 SwapLetters:1");
    EXPECT_EQ(view.calls.size(), 1U);
}

TEST_F(MovingLetters, SixthPlacingGivesTheButtonsBack)
{
    Click("Command9");
    EXPECT_FALSE(board.Command9.Enabled || board.Command16.Enabled || board.Command4.Enabled
        || board.Command5.Enabled || board.Command6.Enabled || board.Text1(6).Enabled);
    Click("Text2:1 Text2:2 Text2:3 Text2:4 Text2:5");
    EXPECT_FALSE(board.Command9.Enabled);
    Click("Text2:6");
    EXPECT_TRUE(board.Command9.Enabled && board.Command16.Enabled && board.Command4.Enabled
        && board.Command5.Enabled && board.Command6.Enabled && board.Text1(1).Enabled);
}

} // namespace
