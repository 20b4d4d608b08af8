#include "ui/typing.h"

#include "game/board.h"
#include "game/rows.h"
#include "ui/part.h"

namespace {

// The first box of the row that holds the letter: as it was typed, or else in another case. 0 when
// none does.
int BoxWith(const LetterRow& row, const TypedLetter& letter)
{
    for (const std::string& text : letter) {
        for (int box = 1; box <= lettersPerWord; ++box) {
            if (row(box).Text == text)
                return box;
        }
    }
    return 0;
}

} // namespace

bool CanType(const Board& board)
{
    return board.Label5.Visible && !board.Frame1.Visible;
}

const Part* TypeLetter(const Board& board, const TypedLetter& letter, const Clicker& click)
{
    if (!CanType(board))
        return nullptr;
    if (!HoldsLetters(board.Text2) && BoxWith(board.Text1, letter) != 0)
        click(FindPart("Command9")); // "Lay Out Word"
    const int box = BoxWith(board.Text2, letter);
    if (box == 0)
        return nullptr;
    click(FindPart("Text2", box));
    for (int left = 1; left <= lettersPerWord; ++left) {
        if (!board.Text2(left).Text.empty())
            return &FindPart("Text2", left);
    }
    return &FindPart("Command3"); // "Submit Word"
}

void PlaceTheRest(const Board& board, const Clicker& click)
{
    for (int box = 1; box <= lettersPerWord && CanType(board); ++box) {
        if (!board.Text2(box).Text.empty())
            click(FindPart("Text2", box));
    }
}
