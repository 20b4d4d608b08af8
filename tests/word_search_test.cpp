// How far into the candidates each level lets the computer look, ties to the even number.

#include "game/word_search.h"

#include "headless/board_text.h"
#include "headless/headless_game.h"

#include <gtest/gtest.h>

namespace {

bool FindsWordAt(int place, int level, int candidates)
{
    HeadlessGame game("");
    SetBoard(game.board,
        "hidden=planet/garden/simple me=planet level:" + std::to_string(level)
            + " candidates=" + std::to_string(candidates) + "*zzzzzz");
    if (place >= 1 && place <= candidates)
        game.board.Candidates(place) = "planet";
    game.platform.draws.resize(18);
    SearchForWord(game.game);
    return game.board.ComputerScored;
}

TEST(WordSearch, LevelSetsTheSpan)
{
    struct Row {
        int level;
        int candidates;
        int span;
    };
    for (const Row row : {Row{1, 300, 300}, {2, 300, 75}, {3, 300, 50}, {4, 300, 38}, {5, 300, 30},
             {6, 300, 25}, {1, 2000, 2000}, {2, 2000, 500}, {3, 2000, 333}, {4, 2000, 250},
             {5, 2000, 200}, {6, 2000, 167}, {2, 302, 76}, {2, 306, 76}, {3, 303, 50}, {5, 305, 30},
             {6, 306, 26}, {6, 318, 26}, {6, 6, 0}}) {
        EXPECT_EQ(FindsWordAt(row.span, row.level, row.candidates), row.span > 0)
            << row.level << " " << row.candidates;
        EXPECT_FALSE(FindsWordAt(row.span + 1, row.level, row.candidates))
            << row.level << " " << row.candidates;
    }
}

} // namespace
