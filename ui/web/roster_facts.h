// What the script is told of the controls before the game begins: all that never changes.
#pragma once

struct Part;
struct TwipRect;

// Each control in the order of Parts(), with its places on a wide screen and on a narrow one.
void TellRoster();

// Of the level panel and its backing the board says where they stand.
bool PlaceIsTheBoards(const Part& part);
void TellPlace(const Part& part, const TwipRect& place);
