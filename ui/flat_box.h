// How a box of the board is drawn: flat, in exactly its colours, with lines that join its
// neighbours'.
#pragma once

#include <QPalette>
#include <QString>

class QPainter;
class QRect;
class QWidget;

struct FlatBox {
    QPalette::ColorRole ground = QPalette::Base;
    QPalette::ColorRole ink = QPalette::Text;
    QString text;
    bool faint = false; // the text is not quite there
    bool pressed = false;
};

// Draws the widget, which has to be in its paint event, with its font and its palette. A disabled
// widget loses its colour and a focused one has a ring that shows on any colour.
void DrawFlatBox(QWidget& widget, const FlatBox& box);

// The outline of a box on this ground, and the ring where the box has the focus; for a box that
// paints the rest itself, in its paint event.
void DrawEdge(QPainter& painter, const QWidget& widget, const QColor& ground);

// The ring of the focus, just inside the box: two colours, one of which shows on any other.
void DrawFocusRing(QPainter& painter, const QRect& box);
