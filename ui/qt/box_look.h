// How a box of the board is drawn: in exactly its colours, with lines that join its neighbours', an
// edge that tells whether a click does anything, and a mark that tells what is to be seen there.
#pragma once

#include "ui/look.h"

#include <QPalette>
#include <QString>

class QPainter;
class QWidget;

struct BoxLook {
    QString text;
    Edge edge = Edge::Flat;
    Mark mark = Mark::None;
    bool faded = false;  // out of play, and its colours with it
    bool clear = false;  // but not that of its letter
    bool hollow = false; // the letter has been taken out
    bool pressed = false;
    bool heavy = false; // an edge twice as wide

    bool operator==(const BoxLook&) const = default;
};

BoxLook BoxLookOf(const Look& look);

// Draws the widget, which has to be in its paint event, in these roles of its palette and with its
// font, and a ring that shows on any colour where the focus is to be seen. The edge is as wide as
// its contents margins.
void DrawBox(QWidget& widget, const BoxLook& look, QPalette::ColorRole ground = QPalette::Base,
    QPalette::ColorRole ink = QPalette::Text);

// Edge, mark and ring alone, for a widget that paints the rest itself, in its paint event.
void DrawEdge(QPainter& painter, const QWidget& widget, const QColor& ground, const BoxLook& look);

// At the edge of the box.
void DrawMark(QPainter& painter, const QRect& box, int line, const QColor& ground, Mark mark);

// A hollow that boxes lie in.
void DrawTray(QPainter& painter, const QRect& tray, int line, const QColor& ground);

// The ring of the focus, just inside the box: two colours, one of which shows on any other.
void DrawFocusRing(QPainter& painter, const QRect& box, int line);

// What a window lets be seen: the focus; and a mouse that rests on a control, which no finger does.
inline constexpr const char* rings = "rings";
inline constexpr const char* hover = "hover";
void LetShow(QWidget& window, const char* what, bool shows);

// Whether the widget has the focus, and its window lets that be seen.
bool HasRing(const QWidget& widget);

// A line just inside the box, as many pixels wide, in whole dots of the screen.
void DrawOutline(QPainter& painter, const QRect& box, int line, const QColor& colour);

// The first colour at this share, the rest of the second.
QColor Blend(const QColor& colour, const QColor& rest, double share);
