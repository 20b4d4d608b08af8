#include "ui/drawing.h"

#include "game/moving_letters.h"
#include "game/rows.h"
#include "ui/guess_box.h"
#include "ui/letter_tile.h"
#include "ui/roster.h"
#include "ui/spoken.h"
#include "ui/used_words_list.h"

#include <QAbstractButton>

#include <algorithm>

namespace {

QString Shown(const std::string& text)
{
    return QString::fromUtf8(text);
}

// The letter of the hidden word that is shown above this box of the guess.
QString ShownAbove(const Board& board, LetterRow Board::* guess, int number)
{
    const auto words = GuessedWords();
    const auto word = std::find_if(
        words.begin(), words.end(), [guess](const GuessedWord& one) { return one.Guess == guess; });
    return Shown((board.*word->Shown)(number).Text);
}

bool WorksNow(Works works, const Board& board, const QString& text)
{
    switch (works) {
    case Works::Always:
        break;
    case Works::WhenFilled:
        return !text.isEmpty();
    case Works::WhenEmpty:
        return text.isEmpty();
    case Works::WhenNoneWaitsAbove:
        return !HoldsLetters(board.Text2);
    }
    return true;
}

// What a click on the tile does now. After "+" the red letter cannot be clicked and is in play.
void ShowEdge(const BuiltControl& control, const Board& board, const QString& text)
{
    const bool now = WorksNow(control.Row->ClickWorks, board, text);
    const bool enabled = IsEnabled(control, board);
    const bool red = control.Shows == FindField("SwapLetters") && control.Number == 1;
    As<LetterTile>(control).SetEdge(!enabled ? Edge::OutOfPlay
            : now                            ? Edge::Raised
                                             : Edge::Flat,
        !enabled && !(red && RedLetterTurnsToo(board)));
}

// A letter in the hand is in no box; the one that it came from shows it faintly.
QString FaintLetter(const LetterBox& box, const Board& board)
{
    const bool lifted = box.Text.empty() && board.HeldFlag && &box == &board.Text1(board.HeldIndex);
    return lifted ? Shown(board.HeldLetter) : QString();
}

// Shows one field of the board in the control that is bound to it.
struct ShowField {
    const BuiltControl& control;
    const Board& board;

    void operator()(LetterRow Board::* row) const
    {
        const LetterBox& box = (board.*row)(control.Number);
        const QString text = Shown(box.Text);
        if (control.Row->Is == Kind::GuessBox) {
            auto& guess = As<GuessBox>(control);
            guess.Write(text);
            guess.SetShown(ShownAbove(board, row, control.Number));
            return;
        }
        const QString faint = FaintLetter(box, board);
        if (control.Row->Is == Kind::ShownBox) {
            As<ShownBox>(control).setText(text);
        } else {
            As<LetterTile>(control).SetLetter(text, faint);
            ShowEdge(control, board, text);
        }
        NameBox(control, text, faint);
    }
    void operator()(NumberBox Board::* number) const
    {
        const QString text = Shown((board.*number).Text);
        As<ShownBox>(control).setText(text);
        NameBox(control, text.trimmed(), QString());
    }
    void operator()(Frame Board::* /*frame*/) const { }
    void operator()(Label Board::* /*label*/) const { }
    void operator()(Panel Board::* /*panel*/) const { }
    void operator()(WordList Board::* words) const
    {
        As<UsedWordsList>(control).SetWords((board.*words).Words());
    }
    // A tick, or the number of the option that is chosen.
    void operator()(std::int16_t Board::* number) const
    {
        auto& button = As<QAbstractButton>(control);
        if (control.Row->Is == Kind::Check)
            button.setChecked(board.*number != 0);
        else if (board.*number == control.Number)
            button.setChecked(true);
    }
};

} // namespace

void ShowControls(const Controls& controls, const Board& board)
{
    for (const BuiltControl& control : controls) {
        QWidget& widget = *control.Widget;
        if (control.Shows != nullptr)
            std::visit(ShowField{control, board}, *control.Shows);
        if (IsEnabled(control, board) && !widget.isEnabledTo(widget.parentWidget()))
            widget.setEnabled(true);
        if (IsOnView(control, board) && widget.isHidden())
            widget.show();
    }
}

void TakeOutOfPlay(const Controls& controls, const Board& board)
{
    for (const BuiltControl& control : controls) {
        QWidget& widget = *control.Widget;
        if (!IsEnabled(control, board) && widget.isEnabledTo(widget.parentWidget()))
            widget.setEnabled(false);
        if (!IsOnView(control, board) && !widget.isHidden())
            widget.hide();
    }
}
