// How far into the candidates each level lets the computer look, ties to the even number.

#include "game/word_search.h"

#include "test_game.h"

namespace {

using WordSearch = TestGame;

TEST_F(WordSearch, LevelSetsTheSpan)
{
    struct Row {
        int level;
        int candidates;
        int span;
    };
    const Row rows[] = {{1, 300, 300}, {2, 300, 75}, {3, 300, 50}, {4, 300, 38}, {5, 300, 30},
        {6, 300, 25}, {1, 2000, 2000}, {2, 2000, 500}, {3, 2000, 333}, {4, 2000, 250},
        {5, 2000, 200}, {6, 2000, 167}, {2, 302, 76}, {2, 306, 76}, {3, 303, 50}, {5, 305, 30},
        {6, 306, 26}, {6, 318, 26}, {6, 6, 0}};
    for (const Row& row : rows) {
        const auto findsWordAt = [&](int place) {
            SetBoard(board,
                "hidden=planet/garden/simple me=planet me:0 level:" + std::to_string(row.level)
                    + " candidates=zzzzzz*" + std::to_string(row.candidates));
            if (place >= 1 && place <= row.candidates)
                board.Candidates(place) = "planet";
            board.UsedCount = 0;
            platform.Play(18, 0);
            SearchForWord(game);
            platform.draws.clear();
            return board.ComputerScored;
        };
        EXPECT_EQ(findsWordAt(row.span), row.span > 0) << row.level << " " << row.candidates;
        EXPECT_FALSE(findsWordAt(row.span + 1)) << row.level << " " << row.candidates;
    }
}

} // namespace
