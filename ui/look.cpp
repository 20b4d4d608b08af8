#include "ui/look.h"

#include "game/clicks.h"
#include "game/hidden_words.h"
#include "game/moving_letters.h"
#include "game/rows.h"
#include "ui/part.h"
#include "ui/roster.h"
#include "ui/spoken.h"

#include <algorithm>

namespace {

// The letter of the hidden word that is shown above this box of the guess.
std::string ShownAbove(const Part& part, const Board& board)
{
    const HiddenWord* word = FindGuessed(part.Row->Name);
    return word == nullptr ? "" : (board.*word->Shown)(part.Number).Text;
}

// A letter in the hand is in no box; the one that it came from shows it faintly.
std::string FaintLetter(const LetterBox& box, const Board& board)
{
    const bool lifted = box.Text.empty() && board.HeldFlag && &box == &board.Text1(board.HeldIndex);
    return lifted ? board.HeldLetter : "";
}

bool HoldsWriting(const Part& part)
{
    return part.Row->Is == Kind::GuessBox
        || (part.Shows != nullptr && std::holds_alternative<NumberBox Board::*>(*part.Shows));
}

// What a click does now. Meant: a lilac tile is raised while no letter is in the hand, though a
// click does nothing then, since it is the next to be clicked.
Edge EdgeOf(const Part& part, const Board& board)
{
    if (HoldsWriting(part))
        return Edge::Sunken;
    if (part.Clicked == nullptr || (part.Row->Is == Kind::Button && *part.Row->Caption == '\0'))
        return Edge::Flat;
    if (!IsEnabled(part, board))
        return Edge::OutOfPlay;
    const bool tile = part.Row->Is == Kind::LetterTile && part.Clicked->Control != "SwapLetters";
    return !tile || part.Clicked->Works(board, static_cast<std::int16_t>(part.Number))
        ? Edge::Raised
        : Edge::Flat;
}

// After "+" the red letter cannot be clicked and is in play.
bool IsFaded(const Part& part, const Board& board)
{
    const LetterBox* box = BoxOf(part, board);
    return !IsEnabled(part, board) && (box != &board.SwapLetters(1) || !RedLetterTurnsToo(board));
}

// A word that is being laid out is what the player looks at.
bool IsClear(const Part& part, const Board& board)
{
    return part.Clicked == FindClick("Text1") && HoldsLetters(board.Text2);
}

bool HoldsMark(const Part& part, const std::vector<const Part*>& marked)
{
    return std::find(marked.begin(), marked.end(), &part) != marked.end();
}

// Of a guess: whether the letter is none of those that the hidden words are made of, as one in the
// other case is.
bool IsForeign(const std::string& letter, const Board& board)
{
    return !letter.empty() && HiddenLetters(board).find(letter) == std::string::npos;
}

Mark MarkOf(const Part& part, const Board& board, const Marks& marks, const Look& look)
{
    if (&part == marks.Refused)
        return Mark::Refused;
    if (part.Row->Is == Kind::GuessBox) {
        if (!look.Above.empty() && look.Text == look.Above)
            return Mark::Known;
        return IsForeign(look.Text, board) ? Mark::Foreign : Mark::None;
    }
    const bool next = part.Number == board.LayOutNext && part.Clicked == FindClick("Text1");
    if (next && HoldsLetters(board.Text2))
        return Mark::Next;
    return HoldsMark(part, marks.Changed) ? Mark::Changed : Mark::None;
}

// What the field of the control has to show.
struct ReadField {
    const Part& part;
    const Board& board;
    Look& look;

    void operator()(LetterRow Board::* row) const
    {
        const LetterBox& box = (board.*row)(part.Number);
        look.Text = box.Text;
        look.Faint = FaintLetter(box, board);
        look.Above = ShownAbove(part, board);
    }
    void operator()(NumberBox Board::* number) const { look.Text = (board.*number).Text; }
    void operator()(WordList Board::* words) const
    {
        for (const std::string& word : (board.*words).Words())
            look.Text += look.Text.empty() ? word : "\n" + word;
    }
    // A tick, or the number of the option that is chosen.
    void operator()(std::int16_t Board::* number) const
    {
        look.Chosen
            = part.Row->Is == Kind::Check ? board.*number != 0 : board.*number == part.Number;
    }
    template <typename Flagged> void operator()(Flagged Board::* /*flag*/) const { }
};

} // namespace

Look LookOf(const Part& part, const Board& board, const Marks& marks)
{
    Look look;
    look.Text = part.Row->Caption;
    look.Enabled = IsEnabled(part, board);
    look.OnView = IsOnView(part, board);
    look.Border = EdgeOf(part, board);
    look.Faded = IsFaded(part, board);
    look.Clear = IsClear(part, board);
    if (part.Shows != nullptr)
        std::visit(ReadField{part, board, look}, *part.Shows);
    look.Marked = MarkOf(part, board, marks, look);
    look.Name = SpokenName(part, look);
    look.Help = SpokenHelp(part);
    return look;
}
