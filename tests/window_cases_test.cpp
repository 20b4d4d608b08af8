// Every case in text once more, played in the real window.

#include "cases.h"
#include "window_fixture.h"

#include <algorithm>

namespace {

// Of those that end the process there are none.
std::vector<Case> CasesThatGoOn(const std::string& folder)
{
    std::vector<Case> cases = ReadCases(folder, PlayersWords());
    std::erase_if(cases, [](const Case& held) {
        return std::ranges::count(held.lines, "> end", &ScriptLine::text) > 0;
    });
    return cases;
}

const auto name = [](const auto& row) { return NameOf(row.param); };

class RulesInWindow : public Window, public testing::WithParamInterface<Case> { };

TEST_P(RulesInWindow, Hold)
{
    ExpectToHold(*this, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cases, RulesInWindow, testing::ValuesIn(CasesThatGoOn("")), name);

class FrontInWindow : public Window, public testing::WithParamInterface<Case> { };

TEST_P(FrontInWindow, Holds)
{
    tellsFocus = true;
    ExpectToHold(*this, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cases, FrontInWindow, testing::ValuesIn(CasesThatGoOn("ui")), name);

} // namespace
