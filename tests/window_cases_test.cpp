// Every case in text once more, played in the real window, but for those that end the process.

#include "cases.h"
#include "window_fixture.h"

#include <algorithm>

namespace {

void ExpectAllToHold(const std::string& folder, bool tellsFocus)
{
    for (const Case& held : ReadCases(folder, PlayersWords())) {
        if (std::ranges::count(held.lines, "> end", &ScriptLine::text) > 0)
            continue;
        SCOPED_TRACE(held.name);
        WindowGame game;
        game.platform = HeadlessPlatform();
        game.tellsFocus = tellsFocus;
        ExpectToHold(game, held);
    }
}

TEST(Cases, HoldInWindow)
{
    ExpectAllToHold("ui", true);
}

TEST(Cases, OfRulesHoldInWindow)
{
    ExpectAllToHold("", false);
}

} // namespace
