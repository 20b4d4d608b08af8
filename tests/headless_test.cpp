// A game without a window: its checks find what is broken, and its words do what they say.

#include "game/clicks.h"
#include "game/rows.h"
#include "headless/board_check.h"
#include "headless/board_text.h"
#include "headless/script.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* inPlay = "board hidden=planet/garden/simple you=garden me=planet swap=simple "
                               "level:1 panel:no frames:yes candidates=300*planet\n";

Run Show(const std::string& text, const char* title)
{
    return [=](HeadlessGame& game) { game.game.view.ShowMessage(text, title); };
}

// What the rules never do.
constexpr EventWord wrongs[] = {
    {"accept", [](const std::string&) { return Show("Word Accepted", StandardTitle); }},
    {"find", [](const std::string& word) { return Show("My Word:" + word, "Word Found"); }},
    {"end",
        [](const std::string&) -> Run { return [](auto& game) { game.game.view.EndProgram(); }; }},
};

struct PlayedOn : HeadlessGame {
    explicit PlayedOn(const std::string& script)
        : HeadlessGame("")
    {
        RunScript(*this, inPlay + script, wrongs);
    }
};

TEST(BoardCheck, NamesWhatIsBroken)
{
    constexpr const char* letters = "the letters are not those of the hidden words";
    constexpr const char* bonus = "the bonus is not ten times the used words";
    constexpr const char* onView = "a letter on view is not that of its word";
    const std::pair<const char*, const char*> rows[] = {
        {"you=gar.en held=d4 shown=.l..../....../.....e used=260", ""},
        {"frames:no", "the window is empty"},
        {"go:no", "nobody's go"},
        {"you=gardem", letters},
        {"me=planek", letters},
        {"swap=simplx", letters},
        {"you=gard.. up=m.....", letters},
        {"you=garde. held=m6", letters},
        {"you=gar.en up=d..... next:6 held=4", "the held letter contradicts itself"},
        {"me=plane. up=t..... next:6", "not six letters to the player"},
        {"you=gar.en up=d..... next:5", "a laying out has lost its place"},
        {"me=plan(et).", "an empty box"},
        {"swap=.(si)mple", "an empty box"},
        {"swap=Simple", "half of the swap row takes clicks"},
        {"used=planet bonus:_20", bonus},
        {"bonus:_10", bonus},
        {"used=planet ledger:0", "the ledger is not the list of used words"},
        {"candidates=299", "there are too few candidates or too many"},
        {"you:-1", "a score is below 0"},
        {"me:-1", "a score is below 0"},
        {"shown=....../.....e/......", onView},
        {"shown=....../....../s....x", onView},
    };
    for (const auto& [parts, fault] : rows)
        EXPECT_EQ(FindFault(PlayedOn(std::string("board ") + parts).board), fault) << parts;

    PlayedOn game("board used=planet");
    game.board.UsedWords(1) = "garden";
    EXPECT_EQ(FindFault(game.board), "the ledger is not the list of used words");
    game.board.UsedWords(1) = "planet";
    EXPECT_EQ(FindFault(game.board, Moment::InsideAnEvent), "");
    for (Frame* frame : GameFrames(game.board)) {
        frame->Visible = false;
        EXPECT_EQ(FindFault(game.board), "half of the board is on view");
        frame->Visible = true;
    }
    game.board.FruitlessSwaps = 5;
    EXPECT_EQ(FindFault(game.board), "fruitless goes are miscounted");
    game.board.Frame1.Visible = true;
    EXPECT_EQ(FindFault(game.board), "half of the level panel is on view");
}

// What no single board shows.
TEST(HeadlessGame, IsHeldToItsRulesFromEventToEvent)
{
    const std::pair<const char*, const char*> rows[] = {
        {"do Text1:1 SwapLetters:1\nboard swap=gimple\ndo Text1:1 SwapLetters:2",
            "a second exchange in one go"},
        {"do Command16\nboard swap=simple\ndo Text1:1 SwapLetters:2",
            "a second exchange in one go"},
        {"seed 1\ndo Text1:1 SwapLetters:1 Command13 Text1:1 SwapLetters:2", ""},
        {"do accept", ""},
        {"board used=49,garden\ndo accept", "a used word scores"},
        {"board used=50,garden\ndo accept", ""},
        {"do find:planet", ""},
        {"do find:garden", "not the computer's letters"},
        {"board used=249,planet\ndo find:planet", "the computer plays a used word"},
        {"do accept end", "the program ended for no reason"},
        {"seed 1\ndo yes no Command10", ""},
    };
    for (const auto& [script, fault] : rows) {
        const PlayedOn game(std::string("check\n") + script);
        EXPECT_EQ(game.FirstFault().substr(0, game.FirstFault().find(": you=")), fault) << script;
    }
}

TEST(Clicks, TellWhenTheyDoNothing)
{
    const std::pair<const char*, const char*> rows[] = {
        {"", "SwapLetters Text2"},
        {"you=gar.en held=d4", "Command4 Command5 Command6 Command9 Text2"},
        {"swap=SIMPLE", "SwapLetters Command15 Text2"},
        {"you=...... up=garden", "Text1 SwapLetters Command4 Command5 Command6 Command9"},
        {"you=.arden up=g.....", "Text1 SwapLetters Command4 Command5 Command6 Command9 Text2"},
        {"shown=.l..../g...../.i....", "SwapLetters Text2 Word1 Word3"},
        {"shown=p...../.a..../......", "SwapLetters Text2 Word2"},
    };
    for (const auto& [parts, nothing] : rows) {
        const PlayedOn game(std::string("board ") + parts);
        std::string controls;
        for (const Click& click : Clicks())
            if (!click.Works(game.board, click.Boxes > 0 ? 2 : 0))
                controls.append(controls.empty() ? 0 : 1, ' ').append(click.Control);
        EXPECT_EQ(controls, nothing) << parts;
    }
}

} // namespace
