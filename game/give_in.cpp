#include "game/give_in.h"

#include "game/board.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/questions.h"
#include "game/start_of_game.h"

// "Give In": the next game, if there is one, goes on from the scores of this one.
void Command10_Click(Game& game)
{
    const Board& board = game.board;
    if (Ask(game, resignation) == Answer::No)
        return;
    game.view.ShowMessage("The Words Were: " + board.HiddenWords(1) + " : " + board.HiddenWords(2)
        + " : " + board.HiddenWords(3));
    if (Ask(game, nextGame) == Answer::No)
        game.view.EndProgram();
    Command1_Click(game);
}
