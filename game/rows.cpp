#include "game/rows.h"

std::string Spell(const LetterRow& row)
{
    std::string word;
    for (const LetterBox& box : row)
        word += box.Text;
    return word;
}

std::string HiddenLetters(const Board& board)
{
    return board.HiddenWords(1) + board.HiddenWords(2) + board.HiddenWords(3);
}

bool HasEmptyBox(const LetterRow& row)
{
    for (const LetterBox& box : row)
        if (box.Text.empty())
            return true;
    return false;
}

bool HoldsLetters(const LetterRow& row)
{
    for (const LetterBox& box : row)
        if (!box.Text.empty())
            return true;
    return false;
}

void Empty(LetterRow& row)
{
    for (LetterBox& box : row)
        box.Text.clear();
}

void Enable(LetterRow& row)
{
    for (LetterBox& box : row)
        box.Enabled = true;
}

void Disable(LetterRow& row)
{
    for (LetterBox& box : row)
        box.Enabled = false;
}

std::vector<Button*> ArrangingButtons(Board& board)
{
    return {&board.Command9, &board.Command16, &board.Command4, &board.Command5, &board.Command6};
}

void EnableArranging(Board& board)
{
    for (Button* button : ArrangingButtons(board))
        button->Enabled = true;
    Enable(board.Text1);
}

std::array<Frame*, 6> GameFrames(Board& board)
{
    return {
        &board.Frame2, &board.Frame3, &board.Frame4, &board.Frame5, &board.Frame7, &board.Frame9};
}
