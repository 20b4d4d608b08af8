// A word is typed: a letter key clicks for the player what a hand would click, and writes nothing.
#pragma once

#include "ui/controls.h"

#include <QObject>

struct Board;
class QKeyEvent;

class Typing : public QObject {
public:
    // Both outlive this.
    Typing(const Controls& controls, const Board& board);

    // A letter lays out the player's letters, if that is not under way, and puts the first tile
    // that bears it in its place; Escape puts the tiles that are left in theirs. False when the key
    // means neither.
    bool Press(const QKeyEvent& key) const;

    // For the whole application: letters that an input method or a dead key composes while a
    // control other than a box to type in has the focus.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool CanType() const;
    void Type(const QString& text) const;
    void TypeLetter(char32_t letter) const;
    void PlaceTheRest() const;
    void Click(const char* control, int box = 0) const;

    const Controls& controls_;
    const Board& board_;
};
