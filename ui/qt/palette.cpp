#include "ui/qt/palette.h"

#include "ui/qt/controls.h"
#include "ui/roster.h"

#include <QWidget>

namespace {

// The palette roles that a kind of control is drawn with.
struct Roles {
    QPalette::ColorRole ground;
    QPalette::ColorRole ink;
};

Roles RolesOf(Kind kind)
{
    switch (kind) {
    case Kind::Frame:
        // What a frame holds inherits its palette, and nothing else is written in this role.
        return {QPalette::Window, QPalette::BrightText};
    case Kind::Button:
        return {QPalette::Button, QPalette::ButtonText};
    case Kind::ShownBox:
    case Kind::LetterTile:
    case Kind::GuessBox:
    case Kind::List:
        return {QPalette::Base, QPalette::Text};
    case Kind::Option:
    case Kind::Check:
    case Kind::Label:
        break;
    }
    return {QPalette::Window, QPalette::WindowText};
}

QColor ColourOf(const Colour& colour)
{
    return QColor(colour.Red, colour.Green, colour.Blue);
}

} // namespace

void GiveColours(const BuiltControl& control)
{
    QWidget& widget = *control.Widget;
    const Control& row = *control.Is->Row;
    if (row.Is == Kind::Check || row.Is == Kind::List) {
        // The style darkens this role for their edges, and black on a dark desktop would not show.
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::gray);
        widget.setPalette(palette);
    }
    if (!row.Background && !row.Text)
        return;
    const Roles roles = RolesOf(row.Is);
    QPalette palette;
    // A named ground never keeps the desktop's ink: white on pale would be left on a dark desktop.
    palette.setColor(roles.ink, ColourOf(row.Text.value_or(Colour())));
    if (row.Background)
        palette.setColor(roles.ground, ColourOf(*row.Background));
    if (row.Is == Kind::Option) {
        // The round mark, and the ring about the option that has the focus.
        palette.setColor(QPalette::Base, Qt::white);
        palette.setColor(QPalette::Text, Qt::black);
        palette.setColor(QPalette::Highlight, palette.color(roles.ink));
    }
    widget.setPalette(palette);
    widget.setForegroundRole(roles.ink);
    // For the backing of the level panel too: what it covers then counts as out of sight.
    widget.setAutoFillBackground(row.Background
        && (row.Is == Kind::Frame || row.Is == Kind::Label || row.Is == Kind::Button));
}
