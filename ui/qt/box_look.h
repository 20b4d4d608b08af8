// How a box of the board is drawn: in exactly its colours, with lines that join its neighbours' and
// an edge that tells whether a click does anything.
#pragma once

#include "ui/look.h"

#include <QPalette>
#include <QString>

class QPainter;
class QWidget;

struct BoxLook {
    QPalette::ColorRole ground = QPalette::Base;
    QPalette::ColorRole ink = QPalette::Text;
    QString text;
    Edge edge = Edge::Flat;
    bool faded = false; // out of play, and its colours with it
    bool faint = false; // the text is not quite there
    bool pressed = false;
    bool heavy = false; // an edge twice as wide
};

// Draws the widget, which has to be in its paint event, with its font and its palette, and a ring
// that shows on any colour where it has the focus. The edge is as wide as its contents margins.
void DrawBox(QWidget& widget, const BoxLook& look);

// A line around the widget on this ground; for a widget that paints the rest itself, in its paint
// event.
void DrawEdge(
    QPainter& painter, const QWidget& widget, const QColor& ground, Edge edge = Edge::Flat);

// The ring of the focus, just inside the box: two colours, one of which shows on any other.
void DrawFocusRing(QPainter& painter, const QRect& box, int line);

// A line just inside the box, as many pixels wide, in whole dots of the screen.
void DrawOutline(QPainter& painter, const QRect& box, int line, const QColor& colour);

// The first colour at this share, the rest of the second.
QColor Blend(const QColor& colour, const QColor& rest, double share);
