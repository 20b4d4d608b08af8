#include "ui/drawing.h"

#include "game/clicks.h"
#include "ui/guess_box.h"
#include "ui/letter_tile.h"
#include "ui/places.h"
#include "ui/roster.h"
#include "ui/spoken.h"
#include "ui/used_words_list.h"

#include <QAbstractButton>

namespace {

QString Shown(const std::string& text)
{
    return QString::fromUtf8(text);
}

void SetVisible(QWidget& widget, bool visible)
{
    if (widget.isHidden() == visible)
        widget.setVisible(visible);
}

void SetEnabled(QWidget& widget, bool enabled)
{
    if (widget.isEnabledTo(widget.parentWidget()) != enabled)
        widget.setEnabled(enabled);
}

// What can be clicked is asked of the table of clicks; the other boxes have a flag of their own.
bool IsEnabled(const BuiltControl& control, const Board& board)
{
    if (control.Clicked != nullptr)
        return control.Clicked->Enabled(board, static_cast<std::int16_t>(control.Number));
    if (control.Shows != nullptr && std::holds_alternative<LetterRow Board::*>(*control.Shows))
        return (board.*std::get<LetterRow Board::*>(*control.Shows))(control.Number).Enabled;
    return true;
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
    double pixelsPerTwip;

    void operator()(LetterRow Board::* row) const
    {
        const LetterBox& box = (board.*row)(control.Number);
        const QString text = Shown(box.Text);
        if (control.Row->Is == Kind::GuessBox) {
            auto& guess = As<GuessBox>(control);
            if (guess.text() != text)
                guess.setText(text);
            return;
        }
        const QString faint = FaintLetter(box, board);
        if (control.Row->Is == Kind::ShownBox)
            As<ShownBox>(control).setText(text);
        else
            As<LetterTile>(control).SetLetter(text, faint);
        NameBox(control, text, faint, IsEnabled(control, board));
    }
    void operator()(NumberBox Board::* number) const
    {
        const QString text = Shown((board.*number).Text);
        As<ShownBox>(control).setText(text);
        NameBox(control, text.trimmed(), QString(), true);
    }
    void operator()(Frame Board::* frame) const
    {
        SetVisible(*control.Widget, (board.*frame).Visible);
    }
    void operator()(Label Board::* label) const
    {
        SetVisible(*control.Widget, (board.*label).Visible);
    }
    void operator()(Panel Board::* panel) const
    {
        PlacePanel(*control.Widget, board.*panel, pixelsPerTwip);
        SetVisible(*control.Widget, (board.*panel).Visible);
    }
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

void ShowControls(const Controls& controls, const Board& board, double pixelsPerTwip)
{
    for (const BuiltControl& control : controls) {
        if (control.Shows != nullptr)
            std::visit(ShowField{control, board, pixelsPerTwip}, *control.Shows);
        SetEnabled(*control.Widget, IsEnabled(control, board));
    }
}
