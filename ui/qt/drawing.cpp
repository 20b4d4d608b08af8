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
    QWidget& widget = *control.Widget;
    GiveName(widget, QString::fromStdString(look.Name));
    widget.setAccessibleDescription(QString::fromStdString(look.Help));
    if (auto* box = dynamic_cast<TakesLook*>(&widget))
        box->SetLook(BoxLookOf(look));
    else if (auto* button = dynamic_cast<QAbstractButton*>(&widget))
        Choose(*button, look.Chosen);
    else if (auto* list = dynamic_cast<UsedWordsList*>(&widget))
        list->SetLook(look);
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

// The boxes of letters in the frame, those that stand close together as one rectangle.
std::vector<QRect> TraysIn(
    const Part& frame, const Controls& controls, const Board& board, int line)
{
    std::vector<QRect> trays;
    for (const BuiltControl& control : controls) {
        const Part& part = *control.Is;
        if (part.Frame != &frame || BoxOf(part, board) == nullptr || part.Row->Is == Kind::GuessBox)
            continue;
        const QMargins rim = 4 * QMargins(line, line, line, line);
        const QRect box = control.Widget->geometry().marginsAdded(rim);
        if (trays.empty() || !trays.back().intersects(box))
            trays.push_back(box);
        trays.back() |= box;
    }
    return trays;
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
            As<TitledFrame>(control).SetTrays(
                TraysIn(*control.Is, controls, board, LineWidth(scale)));
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
