// The rules, and what any front end shows and how it answers, as cases in text.

#include "cases.h"
#include "headless/desk.h"

#include <gtest/gtest.h>

namespace {

const auto name = [](const auto& row) { return NameOf(row.param); };

class Rules : public testing::TestWithParam<Case> { };

TEST_P(Rules, Hold)
{
    HeadlessGame game("");
    ExpectToHold(game, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cases, Rules, testing::ValuesIn(ReadCases("")), name);

class Front : public testing::TestWithParam<Case> { };

TEST_P(Front, Holds)
{
    Desk desk("");
    desk.tellsFocus = true;
    ExpectToHold(desk, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cases, Front, testing::ValuesIn(ReadCases("ui", PlayersWords())), name);

// On a front end the rules are the same.
class RulesAtDesk : public testing::TestWithParam<Case> { };

TEST_P(RulesAtDesk, Hold)
{
    Desk desk("");
    ExpectToHold(desk, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cases, RulesAtDesk, testing::ValuesIn(ReadCases("")), name);

} // namespace
