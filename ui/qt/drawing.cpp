#include "ui/qt/drawing.h"

#include "ui/places.h"
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
        As<LetterTile>(control).SetLetter(text, QString::fromStdString(look.Faint));
        As<LetterTile>(control).SetEdge(look.Border, look.Faded);
        break;
    case Kind::ShownBox:
        As<ShownBox>(control).setText(text);
        break;
    case Kind::GuessBox:
        As<GuessBox>(control).Write(text);
        break;
    case Kind::List:
        As<UsedWordsList>(control).SetWords(text.isEmpty() ? QStringList() : text.split(u'\n'));
        break;
    case Kind::Option:
    case Kind::Check:
        Choose(As<QAbstractButton>(control), look.Chosen);
        break;
    case Kind::Frame:
    case Kind::Button:
    case Kind::Label:
        break;
    }
    GiveName(*control.Widget, QString::fromStdString(look.Name));
    // A blank keeps a reader from saying the tool tip instead.
    const QString help = QString::fromStdString(look.Help);
    const bool tip = !control.Widget->toolTip().isEmpty();
    control.Widget->setAccessibleDescription(help.isEmpty() && tip ? QStringLiteral(" ") : help);
}

void SetLine(const BuiltControl& control, int line)
{
    const Kind kind = control.Is->Row->Is;
    if (kind == Kind::Frame)
        As<TitledFrame>(control).SetLine(line);
    else if (kind == Kind::List)
        As<UsedWordsList>(control).setLineWidth(line);
    else if (HasDrawnEdge(kind))
        control.Widget->setContentsMargins(line, line, line, line);
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
            SetLine(control, LineWidth(scale));
            control.HasFont = false;
        }
        if (IsEnabled(part, board) && !widget.isEnabledTo(widget.parentWidget()))
            widget.setEnabled(true);
        if (IsShown(part, board) && widget.isHidden())
            widget.show();
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
