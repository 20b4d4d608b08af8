#include "ui/taking_back.h"

#include "game/board.h"
#include "ui/part.h"

int PlacedSoFar(const Board& board)
{
    return board.LayOutNext - 1;
}

void TakeBackLast(const Board& board, const Clicker& click)
{
    const int kept = PlacedSoFar(board) - 1;
    PlaceTheRest(board, click);
    click(FindPart("Command9")); // "Lay Out Word"
    for (int box = 1; box <= kept; ++box)
        click(FindPart("Text2", box));
}
