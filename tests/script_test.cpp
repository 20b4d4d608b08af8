// The script language: what it refuses, and how clicks wait.

#include "headless/played_game.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::string Refusal(const std::string& script)
{
    std::istringstream stream("# one line before\n" + script);
    try {
        ReadScripts(stream, "moves.txt", PlayersWords());
        return "";
    } catch (const ScriptError& error) {
        return error.what();
    }
}

TEST(Script, NamesFileLineAndWordOfWhatSaysNothing)
{
    const std::pair<const char*, const char*> rows[] = {
        {"do Command3 Comand4", "Comand4: no such event"},
        {"do Text1", "Text1: Text1 needs the number of a box"},
        {"do Text1:7", "Text1:7: \"7\" is not a number from 1 to 6"},
        {"do ~Text1:2x", "~Text1:2x: \"2x\" is not a number from 1 to 6"},
        {"do Command3:1", "Command3:1: Command3 has no boxes"},
        {"do Text6:7=a", "Text6:7=a: \"7\" is not a number from 1 to 6"},
        {"do Text1:1=a", "Text1:1=a: nothing can be typed into Text1"},
        {"do", "something must follow"},
        {"do key:long-F2", "key:long-F2: no such key"},
        {"draws 7/6", "7/6: \"7\" is not a number from 1 to 6"},
        {"draws 1", "1: \"1\" is not a number from 0.000000 to 1.000000"},
        {"check it", "no such line: check it"},
        {"board your=planet", "your=planet: no such part of a board"},
        {"board me=plane", "me=plane: a row has six boxes"},
        {"board me=pl4net", "me=pl4net: no mark of a row: 4"},
        {"board me=plan(e", "me=plan(e: a bracket is not closed"},
        {"board shown=planet/garden", "shown=planet/garden: rows have slashes between them"},
        {"board you:a", "you:a: \"a\" is not a number from -1000000000000 to 1000000000000"},
        {"board hidden=planet",
            "hidden=planet: three words of six letters have slashes between them"},
        {"board candidates=0*planet", "candidates=0*planet: \"0\" is not a number from 1 to 2000"},
        {"board go:maybe", "go:maybe: yes or no is wanted"},
        {"board off=Command3", "off=Command3: Command3 arranges no letters"},
        {"board candidates=2001*planet",
            "candidates=2001*planet: \"2001\" is not a number from 1 to 2000"},
    };
    for (const auto& [script, refusal] : rows)
        EXPECT_EQ(Refusal(script), std::string("moves.txt:2: ") + refusal);
    EXPECT_EQ(Refusal("== a case\ndo Text1:6 ~Command3 Text6:2=_ Check1=0 word:7\n> anything"), "");
}

// A click that waits runs inside the next repaint, or after the next event where there is none; the
// program that has ended is started again by the next event.
TEST(Script, PlaysAsAWindowWould)
{
    HeadlessGame game("");
    std::vector<std::string> told;
    game.tell = [&told](const std::string& what) { told.push_back(what); };
    RunScript(game, "list none\ndo ~Option1:3 Option1:2 ~Option1:4 Command1 Command3");
    EXPECT_EQ(told,
        (std::vector<std::string>{"repaint", "refused Option1:4",
            "Quorvel2: The file Lexicon.txt must be in the C:\\ Directory (Folder)", "end",
            "refused Command3"}));
    EXPECT_EQ(game.board.Level, 0);
    EXPECT_THROW(RunScript(game, "board frames:yes"), ScriptError) << "on view, and of no level";
    RunScript(game,
        "board hidden=planet/garden/simple you=garden level:1 frames:yes\ndo Text6:2=a_c Command6 "
        "Text1:1");
    EXPECT_EQ(game.board.Text6(2).Text, "a c");
    EXPECT_EQ(game.board.HeldLetter, "") << "nothing is played after a fault";
    EXPECT_EQ(game.FirstFault(), "a draw that was not expected");
}

} // namespace
