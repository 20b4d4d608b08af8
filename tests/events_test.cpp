// Whatever the player does, in whatever order: no letter is lost, no rule broken, nothing stops.

#include "game/clicks.h"
#include "headless/script.h"
#include "tools/search/sessions.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace {

TEST(Events, BreakNoRule)
{
    const auto fails = [](const std::string& script) { return Fails(QUORVEL_WORD_LIST, script); };
    EXPECT_EQ(SearchSessions(100, 1, fails), "");
}

TEST(Events, AreOfEveryKindOnEveryList)
{
    std::set<std::string> never{"word", "right", "yes", "no", "Check1", "Text6", "Text7", "Text8"};
    for (const Click& click : Clicks())
        never.emplace(click.Control);
    std::set<std::string> lists;
    int waiting = 0;
    const auto look = [&](const std::string& script) {
        std::istringstream lines(script);
        std::string list;
        for (std::string line; std::getline(lines, line);)
            list = line.starts_with("list ") ? line : list;
        lists.insert(list);
        std::istringstream words(script);
        for (std::string word; words >> word;) {
            const bool waits = word.starts_with('~');
            waiting += waits;
            word.erase(0, waits ? 1 : 0);
            never.erase(word.substr(0, word.find_first_of(":=")));
        }
        return false;
    };
    EXPECT_EQ(SearchSessions(40, 1, look), "");
    for (const std::string& name : never)
        ADD_FAILURE() << name << " is never played";
    EXPECT_EQ(lists.size(), 7U) << "the game's own, and six more";
    EXPECT_GT(waiting, 1000);
}

TEST(Events, AFaultIsCutDownToWhatItTakes)
{
    const auto fails = [](const std::string& script) {
        return script.find(" Command14", script.find(" Command13 ")) != std::string::npos
            && script.find(" Text1:2") != std::string::npos;
    };
    const std::string script = SearchSessions(9, 1, fails);
    const std::string events = script.substr(script.find("do "));
    EXPECT_EQ(std::ranges::count(events, ' '), 3) << events;
    EXPECT_TRUE(fails(script)) << script;
}

TEST(Events, AFaultACrashAndAGameThatGoesOn)
{
    const std::string game
        = "check\nboard hidden=planet/garden/simple you=garden me=planet level:1 "
          "panel:no frames:yes candidates=300*zzzzzz swap=simpl";
    EXPECT_FALSE(Fails("", game + "e\ndo Command4\n"));
    EXPECT_TRUE(Fails("", game + "x\ndo Command4\n")) << "a letter is not that of the words";
    EXPECT_TRUE(Fails("", "do Comand4\n")) << "the process ends in an exception";
}

} // namespace
