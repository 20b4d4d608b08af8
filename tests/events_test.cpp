// Whatever the player does, in whatever order: no letter is lost, no rule broken, nothing stops.

#include "tools/search/sessions.h"

#include <gtest/gtest.h>

TEST(Events, BreakNoRule)
{
    EXPECT_EQ(SearchSessions(QUORVEL_WORD_LIST, 100, 1), "");
}
