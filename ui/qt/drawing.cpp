#include "ui/qt/drawing.h"

#include "ui/places.h"
#include "ui/qt/board_button.h"
#include "ui/qt/fonts.h"
#include "ui/qt/guess_box.h"
#include "ui/qt/letter_tile.h"
#include "ui/qt/silence.h"
#include "ui/qt/titled_frame.h"
#include "ui/qt/used_words_list.h"
#include "ui/roster.h"
#include "ui/session.h"

#include <QAbstractButton>

#include <optional>
#include <vector>

namespace {

// A name that is given is told, even the same.
void GiveName(QWidget& widget, const QString& name)
{
    if (widget.accessibleName() == name)
        return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    // Where the focus is, a reader would read the whole name again; the news has what is new in it.
    // Older ones do not, and a client that keeps names has to be told of the new one.
    std::optional<Silence> silence;
    if (widget.hasFocus())
        silence.emplace();
#endif
    widget.setAccessibleName(name);
}

// The chosen option of a group cannot be cleared while it is the group's only one.
void Choose(QAbstractButton& button, bool chosen)
{
    if (button.isChecked() == chosen)
        return;
    const bool exclusive = button.autoExclusive();
    button.setAutoExclusive(exclusive && chosen);
    button.setChecked(chosen);
    button.setAutoExclusive(exclusive);
}

void ShowLook(const BuiltControl& control, const Look& look)
{
    const QString text = QString::fromStdString(look.Text);
    switch (control.Is->Row->Is) {
    case Kind::LetterTile:
        As<LetterTile>(control).SetLook(BoxLookOf(look));
        break;
    case Kind::ShownBox:
        As<ShownBox>(control).SetLook(BoxLookOf(look));
        break;
    case Kind::GuessBox:
        As<GuessBox>(control).SetLook(BoxLookOf(look));
        break;
    case Kind::List:
        As<UsedWordsList>(control).SetWords(text.isEmpty() ? QStringList() : text.split(u'\n'));
        As<UsedWordsList>(control).SetMark(look.Marked);
        break;
    case Kind::Option:
    case Kind::Check:
        Choose(As<QAbstractButton>(control), look.Chosen);
        break;
    case Kind::Button:
        As<BoardButton>(control).SetLook(BoxLookOf(look));
        break;
    case Kind::Frame:
    case Kind::Label:
        break;
    }
    GiveName(*control.Widget, QString::fromStdString(look.Name));
    control.Widget->setAccessibleDescription(QString::fromStdString(look.Help));
}

// The mark of an option or a check box is of one size, however the places of its kind are rounded.
void SetMark(QAbstractButton& button, const Control& row, const Scale& scale)
{
    constexpr double shareOfHeight = 0.82; // 14 pixels of the 17 that a level has at full size
    const int size = qRound(shareOfHeight * row.At.Height * scale.PixelsPerTwip);
    button.setIconSize(QSize(size, size));
}

void Rescale(const BuiltControl& control, const Scale& scale)
{
    const Kind kind = control.Is->Row->Is;
    const int line = LineWidth(scale);
    if (kind == Kind::Frame)
        As<TitledFrame>(control).SetLine(line);
    else if (kind == Kind::List)
        As<UsedWordsList>(control).setLineWidth(line);
    else if (HasDrawnEdge(kind))
        control.Widget->setContentsMargins(line, line, line, line);
    else if (kind == Kind::Option || kind == Kind::Check)
        SetMark(As<QAbstractButton>(control), *control.Is->Row, scale);
}

bool IsRowOfLetters(const Part& part)
{
    return part.Row->Is == Kind::LetterTile || (part.Row->Is == Kind::ShownBox && part.Row->Boxes);
}

// The boxes of the frame that stand side by side, as one rectangle each.
std::vector<QRect> RowsIn(const Part& frame, const Controls& controls)
{
    std::vector<QRect> rows;
    for (const BuiltControl& control : controls) {
        if (control.Is->Frame != &frame || !IsRowOfLetters(*control.Is))
            continue;
        const QRect box = control.Widget->geometry();
        if (rows.empty() || rows.back().top() != box.top())
            rows.push_back(box);
        rows.back() |= box;
    }
    return rows;
}

} // namespace

void ShowControls(Controls& controls, const Session& session, const Board& board,
    const Scale& scale, bool rescaled)
{
    for (BuiltControl& control : controls) {
        QWidget& widget = *control.Widget;
        const Part& part = *control.Is;
        ShowLook(control, session.LookOf(part));
        const PixelRect place = PlaceOf(part, board, scale);
        widget.setGeometry(place.Left, place.Top, place.Width, place.Height);
        if (rescaled) {
            Rescale(control, scale);
            control.HasFont = false;
        }
        if (IsEnabled(part, board) && !widget.isEnabledTo(widget.parentWidget()))
            widget.setEnabled(true);
        if (IsShown(part, board) && widget.isHidden())
            widget.show();
    }
    for (const BuiltControl& control : controls) {
        if (rescaled && control.Is->Row->Is == Kind::Frame)
            As<TitledFrame>(control).SetRows(RowsIn(*control.Is, controls));
    }
    GiveFonts(controls, scale.PixelsPerTwip);
}

void TakeOutOfPlay(const Controls& controls, const Board& board)
{
    for (const BuiltControl& control : controls) {
        QWidget& widget = *control.Widget;
        if (!IsEnabled(*control.Is, board) && widget.isEnabledTo(widget.parentWidget()))
            widget.setEnabled(false);
        if (!IsShown(*control.Is, board) && !widget.isHidden())
            widget.hide();
    }
}
